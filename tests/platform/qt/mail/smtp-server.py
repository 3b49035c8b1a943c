#!/usr/bin/env python3
# SPDX-License-Identifier: GPL-3.0-or-later
"""A mail server on 127.0.0.1 for the tests: it does what a server does, and every wrong thing that
it is told to. Prints its port. Each letter goes to FOLDER as one JSON file; what is said, passwords
and all, to FOLDER/log.

    smtp-server.py FOLDER {tls,starttls,plain} [FAULT]

FAULT is "VERB=what" for a verb of the protocol, CONNECT and LETTER (the end of the data) among them:
"RCPT=550 No such user" answers so, "RCPT=silent" says nothing for ever, "RCPT=gone" hangs up. Or it
is "cert=other" (a certificate for another name), "cert=foreign" (of another authority), "plain" (no
protection, whatever the server is meant to have) or "auth=LOGIN" (only that way to sign on).
"""

import base64
import json
import pathlib
import socketserver
import ssl
import sys

FOLDER = pathlib.Path(sys.argv[1])
WAY = sys.argv[2]
FAULT, _, WHAT = (sys.argv[3] if len(sys.argv) > 3 else "").partition("=")
USER, PASSWORD = "jane", "Geheim=\u00fc 7"


def tls_context():
    name = WHAT if FAULT == "cert" else "good"
    context = ssl.SSLContext(ssl.PROTOCOL_TLS_SERVER)
    context.load_cert_chain(FOLDER / f"{name}.pem", FOLDER / f"{name}.key")
    return context


class HungUp(Exception):
    pass


class Session(socketserver.BaseRequestHandler):
    def handle(self):
        self.buffer = b""
        self.secure = False
        self.letter = {}
        try:
            if WAY == "tls" and FAULT != "plain":
                self.protect()
            self.answer("CONNECT", "220 here")
            while True:
                self.obey(self.line())
        except (HungUp, OSError):
            self.log("(over)")

    def protect(self):
        self.request = tls_context().wrap_socket(self.request, server_side=True)
        self.secure = True

    def log(self, text):
        with open(FOLDER / "log", "a", encoding="utf-8") as log:
            log.write(text + "\n")

    def line(self):
        while b"\r\n" not in self.buffer:
            more = self.request.recv(65536)
            if not more:
                raise HungUp
            self.buffer += more
        line, self.buffer = self.buffer.split(b"\r\n", 1)
        text = line.decode("utf-8", "surrogateescape")
        self.log("C: " + text)
        return text

    def say(self, text):
        self.log("S: " + text)
        self.request.sendall(text.encode() + b"\r\n")

    def answer(self, verb, text):
        """Says it, unless the fault is here; whether all was well."""
        if FAULT != verb:
            self.say(text)
            return True
        if WHAT == "silent":
            while self.request.recv(65536):
                pass
        if WHAT in ("silent", "gone"):
            raise HungUp
        self.say(WHAT)
        return False

    def obey(self, line):
        verb = line.split(" ")[0].upper()
        action = getattr(self, "do_" + verb.lower(), None)
        if action:
            action(line)
        else:
            self.say("502 what?")

    def do_ehlo(self, _line):
        offers = ["localhost"]
        if WAY == "starttls" and not self.secure and FAULT != "plain":
            offers.append("STARTTLS")
        if WAY == "plain" or self.secure:
            offers.append("AUTH " + (WHAT if FAULT == "auth" else "PLAIN LOGIN"))
        lines = ["250-" + offer for offer in offers[:-1]] + ["250 " + offers[-1]]
        self.answer("EHLO", "\r\n".join(lines))

    def do_starttls(self, _line):
        if self.answer("STARTTLS", "220 go"):
            self.protect()

    def ask(self, prompt):
        self.say("334 " + base64.b64encode(prompt.encode()).decode())
        return base64.b64decode(self.line()).decode()

    def do_auth(self, line):
        words = line.split(" ")
        if words[1] == "PLAIN":
            secret = base64.b64decode(words[2]).decode() if len(words) > 2 else self.ask("")
            user, password = secret.split("\0")[1:]
        else:
            user = base64.b64decode(words[2]).decode() if len(words) > 2 else self.ask("Username:")
            password = self.ask("Password:")
        good = (user, password) == (USER, PASSWORD)
        self.answer("AUTH", "235 welcome" if good else f"535 {user} with {password}? Never")

    def do_noop(self, _line):
        self.answer("NOOP", "250 fine")

    def do_mail(self, line):
        self.letter = {"from": line.split(":", 1)[1].split(" ")[0], "to": []}
        self.answer("MAIL", "250 fine")

    def do_rcpt(self, line):
        if self.answer("RCPT", "250 fine"):
            self.letter["to"].append(line.split(":", 1)[1])

    def do_data(self, _line):
        if not self.answer("DATA", "354 go on"):
            return
        lines = []
        while (line := self.line()) != ".":
            lines.append(line[1:] if line.startswith(".") else line)
        if FAULT != "LETTER":
            self.keep(lines)
        self.answer("LETTER", "250 fine")

    def keep(self, lines):
        self.letter["data"] = "\r\n".join(lines)
        self.letter["secure"] = self.secure
        number = len(list(FOLDER.glob("*.json")))
        part = FOLDER / f"{number}.part"
        part.write_text(json.dumps(self.letter))
        part.rename(FOLDER / f"{number}.json")

    def do_rset(self, _line):
        self.say("250 fine")

    def do_quit(self, _line):
        self.answer("QUIT", "221 bye")
        raise HungUp


class Server(socketserver.ThreadingTCPServer):
    allow_reuse_address = True
    daemon_threads = True


with Server(("127.0.0.1", 0), Session) as server:
    print(server.server_address[1], flush=True)
    server.serve_forever()
