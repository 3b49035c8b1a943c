# SPDX-License-Identifier: GPL-3.0-or-later
# Takes the releases out of packaging/changelog, which is written as Debian's changelogs are: for the
# software centre as KESTROVA_RELEASES, for the man page the day of the newest as
# KESTROVA_RELEASE_DATE.

set(changelog ${PROJECT_SOURCE_DIR}/packaging/changelog)
set_property(DIRECTORY ${PROJECT_SOURCE_DIR} APPEND PROPERTY CMAKE_CONFIGURE_DEPENDS ${changelog})
file(READ ${changelog} rest)
string(REPLACE "&" "&amp;" rest "${rest}")
string(REPLACE "<" "&lt;" rest "${rest}")
set(months "Jan Feb Mar Apr May Jun Jul Aug Sep Oct Nov Dec")
set(newest "")
set(KESTROVA_RELEASES "")

# By hand, for a list of lines would be torn at every semicolon and bracket.
string(APPEND rest "\n")
while(NOT rest STREQUAL "")
    string(FIND "${rest}" "\n" end)
    string(SUBSTRING "${rest}" 0 ${end} line)
    math(EXPR next "${end} + 1")
    string(SUBSTRING "${rest}" ${next} -1 rest)
    if(line MATCHES "^kestrova \\(([^)]+)\\)")
        set(version ${CMAKE_MATCH_1})
        set(notes "")
        if(newest STREQUAL "")
            set(newest ${version})
        endif()
    elseif(line MATCHES "^  \\* (.*)")
        string(APPEND notes "</li>\n          <li>${CMAKE_MATCH_1}")
    elseif(line MATCHES "^    (.*)")
        string(APPEND notes " ${CMAKE_MATCH_1}")
    elseif(line MATCHES "^ -- .*  [A-Z][a-z][a-z], ([0-9]+) ([A-Z][a-z][a-z]) ([0-9]+) ")
        set(day 0${CMAKE_MATCH_1})
        set(year ${CMAKE_MATCH_3})
        string(FIND "${months}" ${CMAKE_MATCH_2} place)
        math(EXPR month "100 + ${place} / 4 + 1")
        string(REGEX MATCH "..$" month ${month})
        string(REGEX MATCH "..$" day ${day})
        if(NOT KESTROVA_RELEASE_DATE)
            set(KESTROVA_RELEASE_DATE ${year}-${month}-${day})
        endif()
        string(REGEX REPLACE "^</li>\n" "" notes "${notes}")
        string(APPEND KESTROVA_RELEASES
            "    <release version=\"${version}\" date=\"${year}-${month}-${day}\">\n"
            "      <description>\n        <ul>\n${notes}</li>\n        </ul>\n"
            "      </description>\n    </release>\n")
    elseif(NOT line STREQUAL "")
        message(FATAL_ERROR "${changelog}: this line is of no known kind: ${line}")
    endif()
endwhile()
if(NOT newest STREQUAL PROJECT_VERSION)
    message(FATAL_ERROR
        "${changelog} begins with version ${newest}, but this is version ${PROJECT_VERSION}")
endif()
