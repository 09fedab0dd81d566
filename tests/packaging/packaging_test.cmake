# Builds and runs programs that use the library as another project would:
#   cmake -DHOW=installed|subdirectory|fetched -DBUILD=... -DWORK=... [-DSHARED=...] [-DTOOLCHAIN=...] [-DEMULATOR=...]
#     -P packaging_test.cmake
#
# BUILD is the build that is installed, WORK a folder of the test's own, SHARED what the project sets BUILD_SHARED_LIBS to.
set(host ${WORK}/host)

function(run)
  execute_process(COMMAND ${ARGN} COMMAND_ERROR_IS_FATAL ANY)
endfunction()

# The folder that holds the one installed file of this name.
function(folder_of name result)
  file(GLOB_RECURSE files ${WORK}/prefix/${name})
  list(LENGTH files count)
  if(NOT count EQUAL 1)
    message(FATAL_ERROR "${count} installed files are called ${name}, not one")
  endif()
  cmake_path(GET files PARENT_PATH folder)
  set(${result} ${folder} PARENT_SCOPE)
endfunction()

function(use_installation)
  set(prefix ${WORK}/prefix)
  run(${CMAKE_COMMAND} --install ${BUILD} --prefix ${prefix})
  folder_of(records.json data)
  if(NOT data STREQUAL ${prefix}/share/kelvra)
    message(FATAL_ERROR "records.json is installed in ${data}")
  endif()
  folder_of(kelvra.pc pkgconfig)
  set(ENV{PKG_CONFIG_PATH} ${pkgconfig})
  if(TOOLCHAIN)
    # Looks for packages where those of its target are installed.
    folder_of(kelvraConfig.cmake package)
    set(options -Dkelvra_DIR=${package})
  else()
    set(options -DCMAKE_PREFIX_PATH=${prefix})
  endif()
  set(options -S ${CMAKE_CURRENT_LIST_DIR}/installed ${options} PARENT_SCOPE)
  set(ENV{WINEPATH} ${prefix}/bin)
endfunction()

function(use_sources)
  cmake_path(SET root NORMALIZE ${CMAKE_CURRENT_LIST_DIR}/../..)
  set(fetch OFF)
  if(HOW STREQUAL fetched)
    set(fetch ON)
  endif()
  set(options -S ${CMAKE_CURRENT_LIST_DIR}/guest -DKELVRA_SOURCE=${root} -DFETCH=${fetch}
    -DBUILD_SHARED_LIBS=${SHARED} -DKELVRA_UNITY=ON PARENT_SCOPE)
  set(ENV{WINEPATH} "${host}/kelvra/bin")
endfunction()

file(REMOVE_RECURSE ${WORK})
if(HOW STREQUAL installed)
  use_installation()
else()
  use_sources()
endif()
if(TOOLCHAIN)
  list(APPEND options -DCMAKE_TOOLCHAIN_FILE=${TOOLCHAIN})
endif()
run(${CMAKE_COMMAND} -G Ninja -B ${host} ${options})
run(${CMAKE_COMMAND} --build ${host})

# A guest is not installed, and writes only to its own folder.
if(NOT HOW STREQUAL installed)
  run(${CMAKE_COMMAND} --install ${host} --prefix ${WORK}/nothing)
  file(GLOB entries RELATIVE ${host} ${host}/*)
  list(REMOVE_ITEM entries CMakeCache.txt CMakeFiles _deps bin build.ninja cmake_install.cmake install_manifest.txt kelvra
    .ninja_deps .ninja_log)
  file(GLOB foreign ${WORK}/nothing/* ${host}/bin/*kelvra.so* ${host}/bin/kelvra-dump*)
  if(entries OR foreign)
    message(FATAL_ERROR "The library leaves in the project that builds it: ${entries} ${foreign}")
  endif()
endif()

file(GLOB programs ${host}/bin/*)
if(NOT programs)
  message(FATAL_ERROR "No program was built in ${host}")
endif()
foreach(program IN LISTS programs)
  run(${EMULATOR} ${program})
endforeach()
