# qvt_unit_tests(NAME SOURCES src... LIBS lib...)
# One GoogleTest binary per library, registered as one ctest entry.
function(qvt_unit_tests name)
  cmake_parse_arguments(ARG "" "" "SOURCES;LIBS" ${ARGN})
  if(NOT ARG_SOURCES)
    return()
  endif()
  add_executable(${name} ${ARG_SOURCES})
  target_link_libraries(${name} PRIVATE ${ARG_LIBS} GTest::gtest GTest::gtest_main)
  add_test(NAME ${name} COMMAND ${name} --gtest_brief=1)
endfunction()

# Fuzzing flags: coverage for libFuzzer, and the sanitizers that turn a silent fault into a
# crash the fuzzer reports.
set(QVT_FUZZ_FLAGS -fsanitize=fuzzer-no-link,address,undefined -fno-sanitize-recover=undefined
    -fno-omit-frame-pointer)

# qvt_coverage_copy(LIB): LIB_cov, a copy of our static library LIB compiled with the fuzzing
# flags, linking the _cov copies of our own libraries it links. A fuzz target links these copies,
# so that the fuzzer sees the edges of the code behind the reader, not only of its own harness.
function(qvt_coverage_copy lib)
  if(TARGET ${lib}_cov)
    return()
  endif()
  get_target_property(srcs ${lib} SOURCES)
  get_target_property(dir ${lib} SOURCE_DIR)
  set(abs "")
  foreach(s ${srcs})
    if(IS_ABSOLUTE ${s})
      list(APPEND abs ${s})
    else()
      list(APPEND abs ${dir}/${s})
    endif()
  endforeach()
  add_library(${lib}_cov STATIC EXCLUDE_FROM_ALL ${abs})
  foreach(prop INCLUDE_DIRECTORIES INTERFACE_INCLUDE_DIRECTORIES COMPILE_DEFINITIONS COMPILE_OPTIONS)
    get_target_property(v ${lib} ${prop})
    if(v)
      set_property(TARGET ${lib}_cov PROPERTY ${prop} "${v}")
    endif()
  endforeach()
  target_compile_options(${lib}_cov PRIVATE ${QVT_FUZZ_FLAGS})
  get_target_property(deps ${lib} LINK_LIBRARIES)
  if(deps)
    foreach(d ${deps})
      if(TARGET ${d} AND NOT d MATCHES "::")
        get_target_property(type ${d} TYPE)
        if(type STREQUAL "STATIC_LIBRARY")
          qvt_coverage_copy(${d})
          set(d ${d}_cov)
        endif()
      endif()
      target_link_libraries(${lib}_cov PUBLIC ${d})
    endforeach()
  endif()
endfunction()

# qvt_fuzz_target(NAME SOURCES src... LIBS lib... CORPUS dir [SECONDS n])
# A libFuzzer target plus a short bounded run of it on its seed corpus. Our libraries in LIBS
# are linked as their coverage copies. Crashers that were fixed go into the corpus, so the
# bounded run replays them first. One input may take up to 30 s before it counts as a hang: the
# sanitized builds run beside the rest of the suite on a busy machine.
function(qvt_fuzz_target name)
  cmake_parse_arguments(ARG "" "CORPUS;SECONDS" "SOURCES;LIBS" ${ARGN})
  if(NOT QVT_FUZZ)
    return()
  endif()
  if(NOT ARG_SECONDS)
    set(ARG_SECONDS 10)
  endif()
  add_executable(${name} ${ARG_SOURCES})
  target_compile_options(${name} PRIVATE ${QVT_FUZZ_FLAGS})
  target_link_options(${name} PRIVATE -fsanitize=fuzzer,address,undefined)
  foreach(l ${ARG_LIBS})
    if(TARGET ${l} AND NOT l MATCHES "::")
      qvt_coverage_copy(${l})
      set(l ${l}_cov)
    endif()
    target_link_libraries(${name} PRIVATE ${l})
  endforeach()
  set(work ${CMAKE_CURRENT_BINARY_DIR}/${name}-corpus)
  add_test(NAME ${name}-smoke
           COMMAND ${CMAKE_COMMAND} -E env ASAN_OPTIONS=detect_leaks=0
                   $<TARGET_FILE:${name}> -max_total_time=${ARG_SECONDS} -timeout=30 -rss_limit_mb=2048
                   -print_final_stats=0 ${work} ${ARG_CORPUS})
  set_tests_properties(${name}-smoke PROPERTIES FIXTURES_REQUIRED ${name}-dir)
  add_test(NAME ${name}-mkdir COMMAND ${CMAKE_COMMAND} -E make_directory ${work})
  set_tests_properties(${name}-mkdir PROPERTIES FIXTURES_SETUP ${name}-dir)
endfunction()
