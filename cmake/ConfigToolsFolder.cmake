# Flags that every target of the project is built with.
add_library(configtools_flags INTERFACE)
target_include_directories(configtools_flags INTERFACE ${CMAKE_SOURCE_DIR})
target_compile_options(configtools_flags INTERFACE -Wall -Wextra -Wpedantic -Wshadow -Wnon-virtual-dtor -Woverloaded-virtual)
target_compile_definitions(configtools_flags INTERFACE
    QT_NO_CAST_TO_ASCII QT_NO_CAST_FROM_BYTEARRAY QT_NO_URL_CAST_FROM_STRING QT_NO_KEYWORDS QT_STRICT_ITERATORS)
if(CMAKE_UNITY_BUILD)
    # The warning is wrong for sources that are compiled together: classes may use types of unnamed namespaces.
    target_compile_options(configtools_flags INTERFACE $<$<CXX_COMPILER_ID:GNU>:-Wno-subobject-linkage>)
endif()
if(CONFIGTOOLS_WARNINGS_ARE_ERRORS)
    target_compile_options(configtools_flags INTERFACE -Werror)
endif()
if(CONFIGTOOLS_SANITIZER)
    target_compile_options(configtools_flags INTERFACE -fsanitize=${CONFIGTOOLS_SANITIZER} -fno-omit-frame-pointer)
    target_link_options(configtools_flags INTERFACE -fsanitize=${CONFIGTOOLS_SANITIZER})
endif()

# Qt's core headers, which nearly every source includes, precompiled once for all targets.
add_library(configtools_precompiled STATIC ${CMAKE_CURRENT_LIST_DIR}/precompiled.cpp)
target_link_libraries(configtools_precompiled PUBLIC configtools_flags Qt6::Core)
target_precompile_headers(configtools_precompiled PRIVATE <QtCore>)

# One folder of the project as one static library: configtools_add_folder(<target> [WITHOUT_QT] <sources>...). A folder
# may only include headers of the libraries that it links (docs/architecture.md). WITHOUT_QT is for a folder in plain
# C++.
function(configtools_add_folder target)
    cmake_parse_arguments(PARSE_ARGV 1 FOLDER "WITHOUT_QT" "" "")
    add_library(${target} STATIC ${FOLDER_UNPARSED_ARGUMENTS})
    target_link_libraries(${target} PUBLIC configtools_flags)
    if(NOT FOLDER_WITHOUT_QT)
        set_target_properties(${target} PROPERTIES AUTOMOC ON)
        target_precompile_headers(${target} REUSE_FROM configtools_precompiled)
    endif()
endfunction()

# The codes of the languages of the window, as in app/languages.h.
set(configtools_languages zh_CN en_US ro_RO JP_US de_DE es_ES fr_FR it_IT nl_NL no_NO pt_PT sv_SV gl_GL ca_CA)

# The folders of the sources with strings of the window.
set(configtools_string_folders app cgi device favourites gallery media qml report sdk secrets)

# A template workbook for users, in each language: a build tool writes it into the folder template/ of the application.
# The file names are translated and so unknown here; a stamp file represents each of them.
# configtools_add_template(<name of the tool> SOURCES <files>... LIBRARIES <targets>...) also creates the target
# <name>s.
function(configtools_add_template name)
    cmake_parse_arguments(PARSE_ARGV 1 TEMPLATE "" "" "SOURCES;LIBRARIES")
    add_executable(${name} ${TEMPLATE_SOURCES})
    set_target_properties(${name} PROPERTIES RUNTIME_OUTPUT_DIRECTORY ${CMAKE_BINARY_DIR}/tools)
    target_link_libraries(${name} PRIVATE ${TEMPLATE_LIBRARIES})
    set(stamps)
    foreach(language IN LISTS configtools_languages)
        set(stamp ${CMAKE_CURRENT_BINARY_DIR}/${name}_${language}.stamp)
        add_custom_command(
            OUTPUT ${stamp}
            COMMAND ${name} ${CONFIGTOOLS_PROGRAM_DIRECTORY}/language/${language}.qm
                ${CONFIGTOOLS_PROGRAM_DIRECTORY}/template
            COMMAND ${CMAKE_COMMAND} -E touch ${stamp}
            DEPENDS ${name} configtools_translations ${CMAKE_SOURCE_DIR}/translations/${language}.ts
            COMMENT "Template workbook of ${name}, ${language}"
            VERBATIM)
        list(APPEND stamps ${stamp})
    endforeach()
    add_custom_target(${name}s ALL DEPENDS ${stamps})
endfunction()

# Errors of the QML engine. They are only logged and do not fail a test by themselves.
set(configtools_qml_errors "ReferenceError;TypeError;Binding loop;Unable to assign;is not a type;QML [A-Za-z]+:")

# A test program that CTest runs. A logged error of the QML engine fails it, regardless of its exit code.
# configtools_add_test(<name> SOURCES <files>... LIBRARIES <targets>... [TIMEOUT <seconds>])
function(configtools_add_test name)
    cmake_parse_arguments(PARSE_ARGV 1 TEST "" "TIMEOUT" "SOURCES;LIBRARIES")
    if(NOT TEST_TIMEOUT)
        set(TEST_TIMEOUT 120)
    endif()
    if(CONFIGTOOLS_SANITIZER)
        math(EXPR TEST_TIMEOUT "3 * ${TEST_TIMEOUT}") # every access is checked
    endif()
    if(CONFIGTOOLS_SANITIZER STREQUAL "thread")
        list(APPEND TEST_SOURCES ${PROJECT_SOURCE_DIR}/tests/sanitizer/threadpool.cpp)
    endif()
    add_executable(${name} ${TEST_SOURCES})
    set_target_properties(${name} PROPERTIES AUTOMOC ON RUNTIME_OUTPUT_DIRECTORY ${CMAKE_BINARY_DIR}/tests)
    target_link_libraries(${name} PRIVATE configtools_flags Qt6::Test ${TEST_LIBRARIES})
    target_precompile_headers(${name} REUSE_FROM configtools_precompiled)
    add_test(NAME ${name} COMMAND ${name})
    set_tests_properties(${name} PROPERTIES
        TIMEOUT ${TEST_TIMEOUT}
        FAIL_REGULAR_EXPRESSION "${configtools_qml_errors}"
        ENVIRONMENT "QT_QPA_PLATFORM=offscreen;LC_ALL=C.UTF-8")
endfunction()

# For tests in which libraries leak. The check for leaks excludes their allocations by the names of functions
# (scripts/sanitizer/lsan.supp), and gets the complete stack of each allocation in these tests, which takes ten times longer.
# configtools_name_allocations(<test>...)
function(configtools_name_allocations)
    if(CONFIGTOOLS_SANITIZER MATCHES "address")
        set_tests_properties(${ARGV} PROPERTIES
            ENVIRONMENT_MODIFICATION "ASAN_OPTIONS=string_append::fast_unwind_on_malloc=0")
    endif()
endfunction()
