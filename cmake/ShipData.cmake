# SPDX-License-Identifier: GPL-3.0-or-later
# Copies the shipped files into the program folder, leaving alone what is there already: the
# folder is also where the user's own pictures, texts and diary live. Only the manual is nobody's
# but the program's.
file(GLOB_RECURSE files RELATIVE ${SOURCE} ${SOURCE}/*)
foreach(file IN LISTS files)
    if(NOT EXISTS ${TARGET}/${file} OR file MATCHES "^Help[./]")
        get_filename_component(folder ${TARGET}/${file} DIRECTORY)
        file(COPY ${SOURCE}/${file} DESTINATION ${folder})
    endif()
endforeach()
