# SPDX-License-Identifier: GPL-3.0-or-later
# Where an installation puts what. The program and its parts stay together in a folder of their own,
# for it looks for them beside itself; from there it finds the files that it ships, and the link by
# which it is started (platform/qt/DataFolder.cpp). So these places do not depend on the system.

include(${CMAKE_CURRENT_LIST_DIR}/ReleaseNotes.cmake)
set(private libexec/kestrova)
set(generated ${PROJECT_BINARY_DIR}/packaging)
set(sources ${PROJECT_SOURCE_DIR}/packaging)

# Whatever src/ builds to be run or loaded: a new module needs no line here.
get_property(targets DIRECTORY ${PROJECT_SOURCE_DIR}/src PROPERTY BUILDSYSTEM_TARGETS)
foreach(target IN LISTS targets)
    get_target_property(type ${target} TYPE)
    if(type MATCHES "^(EXECUTABLE|MODULE_LIBRARY)$")
        install(TARGETS ${target} RUNTIME DESTINATION ${private} LIBRARY DESTINATION ${private})
    endif()
endforeach()
file(MAKE_DIRECTORY ${generated})
file(CREATE_LINK ../${private}/Kestrova ${generated}/kestrova SYMBOLIC)
install(FILES ${generated}/kestrova DESTINATION bin)

# Not in share/kestrova itself: with a prefix of the user's own, that is the user's data folder.
install(DIRECTORY ${PROJECT_SOURCE_DIR}/data/ DESTINATION share/kestrova/shipped)

install(FILES ${sources}/org.kestrova.kestrova.desktop DESTINATION share/applications)
set(metainfo org.kestrova.kestrova.metainfo.xml)
configure_file(${sources}/${metainfo}.in ${generated}/${metainfo} @ONLY)
install(FILES ${generated}/${metainfo} DESTINATION share/metainfo)

set(icons share/icons/hicolor)
install(FILES ${sources}/icon/kestrova.svg DESTINATION ${icons}/scalable/apps)
foreach(size 16 24 32 48 64 128 256)
    install(FILES ${sources}/icon/kestrova-${size}.png DESTINATION ${icons}/${size}x${size}/apps
        RENAME kestrova.png)
endforeach()

# Without the time of compression, so that the same text gives the same file.
configure_file(${sources}/kestrova.1.in ${generated}/kestrova.1 @ONLY)
foreach(file ${generated}/kestrova.1 ${sources}/changelog)
    get_filename_component(name ${file} NAME)
    add_custom_command(OUTPUT ${generated}/${name}.gz
        COMMAND gzip -9nc ${file} > ${generated}/${name}.gz DEPENDS ${file} VERBATIM)
    list(APPEND compressed ${generated}/${name}.gz)
endforeach()
add_custom_target(kestrova_papers ALL DEPENDS ${compressed})
install(FILES ${generated}/kestrova.1.gz DESTINATION share/man/man1)
install(FILES ${generated}/changelog.gz ${sources}/copyright DESTINATION share/doc/kestrova)
