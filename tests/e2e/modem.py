#!/usr/bin/env python3
# SPDX-License-Identifier: GPL-3.0-or-later
"""A voice modem on a pseudo-terminal for the scenes, with somebody at the other end of the line who
presses 1 after each thing that is said.

    modem.py LINK LOG [BUSY_NUMBER]

LINK becomes a link to the port. LOG gets a line for each command, and "sound N" for N bytes of
voice. Dialling BUSY_NUMBER fails.
"""

import os
import sys
import threading
import tty

LINK, LOG = sys.argv[1:3]
BUSY = sys.argv[3] if len(sys.argv) > 3 else None
DLE, ETX = b"\x10", b"\x03"
REPLIES = {
    "AT+FMM?": "\r\nVoice Box\r\n\r\nOK\r\n",
    "AT#MDL?": "\r\nERROR\r\n",
    "AT#MFR?": "\r\nERROR\r\n",
    "AT#REV?": "\r\nERROR\r\n",
}
PRESSED_AFTER = 0.7  # seconds

master, slave = os.openpty()
tty.setraw(slave)  # held open, so that the line outlives a port that is closed
os.symlink(os.ttyname(slave), LINK)


def log(text):
    with open(LOG, "a", encoding="utf-8") as file:
        file.write(text + "\n")


def byte():
    return os.read(master, 1)


def send(text):
    os.write(master, text.encode())


def take_voice():
    """Swallows the samples up to DLE ETX; then 1 is pressed."""
    count, last = 0, b""
    while True:
        now = byte()
        if last == DLE and now == ETX:
            break
        last = b"" if last == DLE else now
        count += 1
    log(f"sound {count}")
    send("\r\nVCON\r\n")
    threading.Timer(PRESSED_AFTER, send, ["\x101"]).start()


line = b""
while True:
    now = byte()
    if now != b"\r":
        line += now
        continue
    command, line = line.decode("latin-1"), b""
    log(command)
    send(command + "\r")
    if command == "AT+VTX":
        send("\r\nCONNECT\r\n")
        take_voice()
    elif BUSY and BUSY in command:
        send("\r\nERROR\r\n")
    else:
        send(REPLIES.get(command, "\r\nOK\r\n"))
