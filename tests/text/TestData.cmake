# The text of the tests, which goes through the importer as the reader's does, and the program's data files made of it.
add_executable(make_text ${CMAKE_CURRENT_SOURCE_DIR}/text/make_text.cpp)
target_link_libraries(make_text PRIVATE importer)
set(test_text ${CMAKE_BINARY_DIR}/test/text/scripture.tsv)
set(test_data ${CMAKE_BINARY_DIR}/test/data)
file(GLOB data_sources CONFIGURE_DEPENDS ${CMAKE_SOURCE_DIR}/data/topics/*.txt ${CMAKE_SOURCE_DIR}/data/maps/map*
     ${CMAKE_SOURCE_DIR}/data/help/*.html ${CMAKE_SOURCE_DIR}/data/text/*/* ${CMAKE_SOURCE_DIR}/tools/*.py)
file(MAKE_DIRECTORY ${CMAKE_BINARY_DIR}/test/text)
add_custom_command(OUTPUT ${test_text}
    COMMAND make_text ${CMAKE_CURRENT_SOURCE_DIR}/text/fixed_verses.tsv ${test_text}
    DEPENDS make_text ${CMAKE_CURRENT_SOURCE_DIR}/text/fixed_verses.tsv)
# The database is dated to the past, so that another file tells when it was made.
add_custom_command(OUTPUT ${test_data}.made
    COMMAND ${CMAKE_COMMAND} -E env KESTREL_TEXT=${test_text}
            ${CMAKE_SOURCE_DIR}/tools/make_data ${CMAKE_BINARY_DIR}/tools ${KESTREL_TEST_DIR} ${test_data}
    COMMAND ${CMAKE_COMMAND} -E touch ${test_data}.made
    DEPENDS ${test_text} import_text build_database make_clip ${data_sources} ${CMAKE_SOURCE_DIR}/tools/make_data)
add_custom_target(test_data DEPENDS ${test_data}.made)
add_custom_target(test_folder ALL
    COMMAND ${CMAKE_COMMAND} -E copy_if_different $<TARGET_FILE:kestrel-reader> ${KESTREL_TEST_DIR}/kestrel-reader
    DEPENDS test_data kestrel-reader)
