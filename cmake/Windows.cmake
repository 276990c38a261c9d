# What only the program for Windows has: an icon, a version and a manifest in its executable, and the program that sets the
# database's time. Included for that system alone; packaging/windows/build calls it.

enable_language(RC)
set(KESTREL_ICON "" CACHE FILEPATH "The program's icon as an .ico file, drawn by export_pictures; none without it")
set(windows ${CMAKE_SOURCE_DIR}/packaging/windows)

# windows_program(NAME DESCRIPTION): makes the executable one without a console, with these resources.
function(windows_program name description)
    configure_file(${windows}/resources.rc.in ${CMAKE_BINARY_DIR}/${name}.rc @ONLY)
    target_sources(${name} PRIVATE ${CMAKE_BINARY_DIR}/${name}.rc)
    set_target_properties(${name} PROPERTIES WIN32_EXECUTABLE ON)
endfunction()

set(icon_line "")
if(KESTREL_ICON)
    set(icon_line "1 ICON \"${KESTREL_ICON}\"")
endif()

windows_program(kestrel-reader "Kestrel Reader (PT)")
# Qt reads its settings from a resource: windows follow the desktop's dark mode.
set_target_properties(kestrel-reader PROPERTIES AUTORCC ON)
target_sources(kestrel-reader PRIVATE ${windows}/settings.qrc)
target_link_libraries(desktop PRIVATE advapi32 ole32 oleaut32 shell32)

add_executable(kestrel-stamp ${CMAKE_SOURCE_DIR}/tools/stamp.cpp)
target_compile_definitions(kestrel-stamp PRIVATE UNICODE _UNICODE)
target_compile_options(kestrel-stamp PRIVATE -municode)
target_link_options(kestrel-stamp PRIVATE -municode)
target_link_libraries(kestrel-stamp PRIVATE strict_warnings)
windows_program(kestrel-stamp "Sets the time of the text of Kestrel Reader (PT)")
