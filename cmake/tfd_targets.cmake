# SPDX-License-Identifier: MIT
#
# What the folders' CMakeLists.txt share: the language level and warnings of our own code, the two
# ways to add a test, and the package files for find_package and pkg-config.

# Linked privately by every target of ours. Warnings become errors only through
# CMAKE_COMPILE_WARNING_AS_ERROR, which the presets set: a newer compiler must not break a
# stranger's build.
add_library(tfd_warnings INTERFACE)
target_compile_options(
  tfd_warnings
  INTERFACE -Wall
            -Wextra
            -Wpedantic
            -Wconversion
            -Wsign-conversion
            -Wshadow
            -Wnon-virtual-dtor
            -Wold-style-cast
            -Woverloaded-virtual
            # g++ means designated initializers too
            -Wno-missing-field-initializers
            # a false alarm of g++ 12 on "text" + string
            $<$<CXX_COMPILER_ID:GNU>:-Wno-restrict>)

if(TFD_SANITIZE)
  set(tfd_sanitizers -fsanitize=address,undefined -fno-sanitize-recover=all)
  add_compile_options(${tfd_sanitizers} -fno-omit-frame-pointer)
  add_link_options(${tfd_sanitizers})
endif()

# What a build with libFuzzer measures; the fuzzers themselves link its main program as well.
if(TFD_FUZZ)
  add_compile_options(-fsanitize=fuzzer-no-link)
endif()

# tfd_defaults(TARGET): C++20 without extensions, hidden symbols, our warnings.
function(tfd_defaults target)
  target_compile_features(${target} PUBLIC cxx_std_20)
  set_target_properties(
    ${target}
    PROPERTIES CXX_EXTENSIONS OFF
               CXX_VISIBILITY_PRESET hidden
               VISIBILITY_INLINES_HIDDEN ON)
  target_link_libraries(${target} PRIVATE $<BUILD_INTERFACE:tfd_warnings>)
endfunction()

# tfd_version_script(TARGET MAP): exports only what MAP lists, and leaves no symbol unresolved.
# clang keeps the sanitizers' run-time in the executable, hence the restriction to GNU.
function(tfd_version_script target map)
  target_link_options(${target} PRIVATE LINKER:--version-script=${map}
                      $<$<CXX_COMPILER_ID:GNU>:LINKER:--no-undefined>)
  set_property(TARGET ${target} APPEND PROPERTY LINK_DEPENDS ${map})
endfunction()

# tfd_gtest(NAME [PREFIX prefix] SOURCES... LIBRARIES...): a GoogleTest program. CTest sees each
# test in it, under its own name behind the prefix.
function(tfd_gtest name)
  cmake_parse_arguments(PARSE_ARGV 1 arg "" "PREFIX" "SOURCES;LIBRARIES")
  add_executable(${name} ${arg_SOURCES})
  tfd_defaults(${name})
  target_link_libraries(${name} PRIVATE ${arg_LIBRARIES} GTest::gtest_main)
  gtest_discover_tests(${name} TEST_PREFIX "${arg_PREFIX}" DISCOVERY_TIMEOUT 60
                       PROPERTIES TIMEOUT 120)
endfunction()

# tfd_test(NAME COMMAND...): a program or script as a test.
function(tfd_test name)
  add_test(NAME ${name} COMMAND ${ARGN})
  set_tests_properties(${name} PROPERTIES TIMEOUT 300)
endfunction()

# tfd_fuzzer(NAME [SOURCES...] LIBRARIES...): the target in NAME_fuzz.cpp, as a fuzzer or as the test
# fuzz.NAME that replays corpus/NAME.
function(tfd_fuzzer name)
  cmake_parse_arguments(PARSE_ARGV 1 arg "" "" "SOURCES;LIBRARIES")
  add_executable(${name}_fuzz ${name}_fuzz.cpp ${arg_SOURCES})
  tfd_defaults(${name}_fuzz)
  target_link_libraries(${name}_fuzz PRIVATE ${arg_LIBRARIES})
  if(TFD_FUZZ)
    target_link_options(${name}_fuzz PRIVATE -fsanitize=fuzzer)
  else()
    target_sources(${name}_fuzz PRIVATE replay_main.cpp)
    tfd_test(fuzz.${name} ${name}_fuzz ${CMAKE_CURRENT_SOURCE_DIR}/corpus/${name})
  endif()
endfunction()

# tfd_install_pc(NAME): one file for pkg-config, which finds its prefix from its own place.
function(tfd_install_pc name)
  cmake_path(SET pc_folder "${CMAKE_INSTALL_LIBDIR}/pkgconfig")
  cmake_path(RELATIVE_PATH CMAKE_INSTALL_PREFIX
             BASE_DIRECTORY "${CMAKE_INSTALL_PREFIX}/${pc_folder}" OUTPUT_VARIABLE pc_prefix)
  configure_file(cmake/${name}.pc.in ${name}.pc @ONLY)
  install(FILES "${PROJECT_BINARY_DIR}/${name}.pc" DESTINATION ${pc_folder})
endfunction()

# tfd_install_package(): what find_package and pkg-config read, and the documents.
function(tfd_install_package)
  set(folder "${CMAKE_INSTALL_LIBDIR}/cmake/text_format_detection")
  configure_package_config_file(
    cmake/text_format_detection-config.cmake.in text_format_detection-config.cmake
    INSTALL_DESTINATION ${folder} NO_SET_AND_CHECK_MACRO)
  write_basic_package_version_file(text_format_detection-config-version.cmake
                                   COMPATIBILITY SameMajorVersion)
  install(FILES "${PROJECT_BINARY_DIR}/text_format_detection-config.cmake"
                "${PROJECT_BINARY_DIR}/text_format_detection-config-version.cmake"
          DESTINATION ${folder})
  install(EXPORT text_format_detection-targets NAMESPACE text_format_detection::
          DESTINATION ${folder})
  tfd_install_pc(text_format_detection)
  if(TARGET text_import)
    install(EXPORT text_format_detection-import-targets NAMESPACE text_format_detection::
            DESTINATION ${folder})
    tfd_install_pc(text_import)
  endif()
  install(FILES README.md LICENSE CHANGELOG.md DESTINATION ${CMAKE_INSTALL_DOCDIR})
  install(DIRECTORY docs DESTINATION ${CMAKE_INSTALL_DOCDIR} FILES_MATCHING PATTERN *.md)
endfunction()
