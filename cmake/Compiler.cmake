# SPDX-License-Identifier: GPL-3.0-or-later
# What every target of ours is compiled with.

find_program(CCACHE ccache)
if(CCACHE)
    set(CMAKE_CXX_COMPILER_LAUNCHER ${CCACHE})
endif()

add_library(kestrova_options INTERFACE)
target_compile_options(kestrova_options INTERFACE
    -Wall -Wextra -Wpedantic -Wshadow -Wconversion)
if(KESTROVA_WERROR)
    target_compile_options(kestrova_options INTERFACE -Werror)
endif()
if(KESTROVA_SANITIZE)
    target_compile_options(kestrova_options INTERFACE
        -fsanitize=${KESTROVA_SANITIZE} -fno-sanitize-recover=all -fno-omit-frame-pointer)
    target_link_options(kestrova_options INTERFACE -fsanitize=${KESTROVA_SANITIZE})
endif()
