# Settings shared by every target, and the functions that make a library or a test of a folder.

set(CMAKE_CXX_STANDARD 20)
set(CMAKE_CXX_STANDARD_REQUIRED ON)
set(CMAKE_CXX_EXTENSIONS OFF)
set(CMAKE_POSITION_INDEPENDENT_CODE ON)
set(CMAKE_EXPORT_COMPILE_COMMANDS ON)

find_program(CCACHE ccache)
if(CCACHE)
    set(CMAKE_CXX_COMPILER_LAUNCHER ${CCACHE})
endif()

# The program as the tests meet it: assembled by this build, over a text of the tests' own.
set(KESTREL_TEST_DIR ${CMAKE_BINARY_DIR}/test/kestrel)
if(WIN32)
    set(drive Z:) # as which Wine shows the folders of the system that it runs on
endif()

# What every target is warned of, and what the program and its tools are besides: a test may compare an int with a size.
add_library(warnings INTERFACE)
# g++ 12 sees overlaps in joined strings where there are none.
target_compile_options(warnings INTERFACE -Wall -Wextra -Wpedantic -Wshadow -Wnon-virtual-dtor
                       $<$<CXX_COMPILER_ID:GNU>:-Wno-restrict> $<$<BOOL:${KESTREL_WERROR}>:-Werror>)
link_libraries(warnings)
add_library(strict_warnings INTERFACE)
target_compile_options(strict_warnings INTERFACE -Wconversion -Wsign-conversion -Wold-style-cast -Woverloaded-virtual
                       -Wsuggest-override $<$<CXX_COMPILER_ID:GNU>:-Wuseless-cast>)
add_compile_definitions(QT_NO_KEYWORDS QT_NO_FOREACH QT_NO_CAST_TO_ASCII QT_NO_URL_CAST_FROM_STRING
                        QT_NO_NARROWING_CONVERSIONS_IN_CONNECT)
if(KESTREL_SANITIZE)
    add_compile_options(-fsanitize=address,undefined -fno-sanitize-recover=all -fno-omit-frame-pointer)
    add_link_options(-fsanitize=address,undefined)
    add_compile_definitions(_GLIBCXX_ASSERTIONS)
    # Linked into every program, so that none needs anything in its environment.
    add_library(sanitizer_defaults OBJECT ${CMAKE_SOURCE_DIR}/tests/support/sanitizer_defaults.cpp)
    link_libraries(sanitizer_defaults)
else()
    # Hardening, as a program deserves that opens files it did not write.
    add_compile_options(-fstack-protector-strong -fstack-clash-protection
                        $<$<NOT:$<CONFIG:Debug>>:-U_FORTIFY_SOURCE> $<$<NOT:$<CONFIG:Debug>>:-D_FORTIFY_SOURCE=2>)
    if(WIN32)
        # The protector's library is linked where this stands. Nothing in a program tells when it was linked.
        add_link_options(-static -fstack-protector-strong -Wl,--dynamicbase,--nxcompat,--high-entropy-va,--no-insert-timestamp)
        # packaging/windows/sysroot says why registers are not allocated across functions.
        add_compile_options(-ffile-prefix-map=${CMAKE_SOURCE_DIR}=. -fno-ipa-ra)
    else()
        add_link_options(-Wl,-z,relro,-z,now)
    endif()
    include(CheckPIESupported)
    check_pie_supported()
endif()

# What only one system has stands in files that are named after it, and after no other.
set(only_windows "(Windows\\.cpp|_windows_test\\.cpp)$")
set(only_linux "(Linux\\.cpp|_linux_test\\.cpp)$")
if(WIN32)
    set(KESTREL_OF_OTHER_SYSTEMS ${only_linux})
elseif(CMAKE_SYSTEM_NAME STREQUAL Linux)
    set(KESTREL_OF_OTHER_SYSTEMS ${only_windows})
else()
    set(KESTREL_OF_OTHER_SYSTEMS "${only_linux}|${only_windows}")
endif()

# use_precompiled_headers(NAME): compiles what the windows include of Qt once for all libraries, in two fifths of the time.
# Not with ccache, which could do nothing then, and not with the tests, so that every file names what it needs.
function(use_precompiled_headers name)
    if(CCACHE OR KESTREL_TESTS)
        return()
    endif()
    get_property(first GLOBAL PROPERTY KESTREL_PRECOMPILED)
    if(first)
        target_precompile_headers(${name} REUSE_FROM ${first})
        return()
    endif()
    target_precompile_headers(${name} PRIVATE <QApplication> <QComboBox> <QLabel> <QMainWindow> <QMdiArea> <QMdiSubWindow>
        <QMenu> <QMouseEvent> <QPainter> <QPlainTextEdit> <QScrollBar> <QStyleOption> <QTimer> <QTreeWidget>
        <functional> <memory> <optional> <string> <vector>)
    set_property(GLOBAL PROPERTY KESTREL_PRECOMPILED ${name})
endfunction()

# kestrel_library(NAME [QT] [FOLDER folder] [LINK target...]): the library of src/NAME, or of src/FOLDER where CMake has
# the name for itself, made of whatever sources stand there.
function(kestrel_library name)
    cmake_parse_arguments(ARG "QT" "FOLDER" "LINK" ${ARGN})
    if(NOT ARG_FOLDER)
        set(ARG_FOLDER ${name})
    endif()
    set(folder ${CMAKE_SOURCE_DIR}/src/${ARG_FOLDER})
    file(GLOB sources CONFIGURE_DEPENDS ${folder}/*.cpp ${folder}/*.h)
    list(FILTER sources EXCLUDE REGEX "${KESTREL_OF_OTHER_SYSTEMS}")
    add_library(${name} STATIC ${sources})
    target_include_directories(${name} PUBLIC ${CMAKE_SOURCE_DIR}/src)
    target_link_libraries(${name} PUBLIC ${ARG_LINK} PRIVATE strict_warnings)
    set_target_properties(${name} PROPERTIES AUTOMOC ${ARG_QT})
    if(ARG_QT)
        use_precompiled_headers(${name})
    endif()
endfunction()

# kestrel_test(NAME [QT] [LINK target...]): one test program of the sources in tests/NAME.
# With QT it gets an application that needs no screen, and prints values of Qt as text. ctest gives it nothing that it would
# not have when run by hand.
function(kestrel_test name)
    cmake_parse_arguments(ARG "QT" "" "LINK" ${ARGN})
    file(GLOB sources CONFIGURE_DEPENDS ${CMAKE_SOURCE_DIR}/tests/${name}/*.cpp)
    list(FILTER sources EXCLUDE REGEX "${KESTREL_OF_OTHER_SYSTEMS}")
    add_executable(test_${name} ${sources})
    set_target_properties(test_${name} PROPERTIES AUTOMOC ${ARG_QT})
    target_compile_definitions(test_${name} PRIVATE KESTREL_INSTALL_DIR="${drive}${KESTREL_TEST_DIR}"
                               KESTREL_SOURCE_DIR="${drive}${CMAKE_SOURCE_DIR}")
    target_include_directories(test_${name} PRIVATE ${CMAKE_SOURCE_DIR}/tests)
    add_dependencies(test_${name} test_data)
    # Test code is compiled for a quick build; what it tests is compiled as everywhere.
    target_compile_options(test_${name} PRIVATE -O0 -U_FORTIFY_SOURCE)
    if(ARG_QT)
        target_compile_options(test_${name} PRIVATE -include support/PrintQt.h)
    endif()
    target_link_libraries(test_${name} PRIVATE ${ARG_LINK} test_files GTest::gmock $<IF:$<BOOL:${ARG_QT}>,qt_test_main,GTest::gtest_main>)
    add_test(NAME ${name} COMMAND test_${name})
    set_tests_properties(${name} PROPERTIES TIMEOUT 600)
endfunction()

# kestrel_long_test(NAME FOLDER FILTER): what takes long of the tests of FOLDER is a test with a name of its own, and no part of
# the test FOLDER. The program run by hand has all of them.
function(kestrel_long_test name folder filter)
    add_test(NAME ${name} COMMAND test_${folder} --gtest_filter=${filter})
    set_tests_properties(${name} PROPERTIES TIMEOUT 600)
    set_tests_properties(${folder} PROPERTIES ENVIRONMENT "GTEST_FILTER=-${filter}")
endfunction()

# kestrel_script_test(NAME SCRIPT [argument...]): a script of tests/ that ends with 0 when all is well.
function(kestrel_script_test name script)
    add_test(NAME ${name} COMMAND ${SYSTEM_PYTHON} ${CMAKE_SOURCE_DIR}/tests/${script} ${ARGN})
    set_tests_properties(${name} PROPERTIES TIMEOUT 600)
endfunction()

# kestrel_pytest(NAME PATH...): the Python tests of these folders or files of tests/.
function(kestrel_pytest name)
    list(TRANSFORM ARGN PREPEND ${CMAKE_SOURCE_DIR}/tests/ OUTPUT_VARIABLE paths)
    add_test(NAME ${name} COMMAND ${SYSTEM_PYTHON} -m pytest -q -rs -p no:cacheprovider --durations=10 --durations-min=1
             ${paths})
    set_tests_properties(${name} PROPERTIES TIMEOUT 900 ENVIRONMENT
        "KESTREL_TOOLS_DIR=${CMAKE_BINARY_DIR}/tools;KESTREL_INSTALL_DIR=${KESTREL_TEST_DIR}")
endfunction()
