# SPDX-License-Identifier: GPL-3.0-or-later
# Gives every packaged file the time SOURCE_DATE_EPOCH, so that one and the same source gives one and
# the same package; without it, the times are those of the build.
if(NOT "$ENV{SOURCE_DATE_EPOCH}" STREQUAL "")
    execute_process(
        COMMAND find ${CPACK_TEMPORARY_DIRECTORY} -exec
            touch --no-dereference --date=@$ENV{SOURCE_DATE_EPOCH} {} +
        COMMAND_ERROR_IS_FATAL ANY)
endif()
