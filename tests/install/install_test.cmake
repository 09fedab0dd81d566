# Installs the library into an empty folder, and builds and runs a program against what is there:
#   cmake -DBUILD=... -DWORK=... [-DTOOLCHAIN=...] [-DEMULATOR=...] -P install_test.cmake
#
# BUILD is the build that is installed, WORK a folder of the test's own.
set(prefix ${WORK}/prefix)
set(consumer ${WORK}/consumer)

function(run)
  execute_process(COMMAND ${ARGN} COMMAND_ERROR_IS_FATAL ANY)
endfunction()

# The folder of the one file of this name that is installed.
function(folder_of name result)
  file(GLOB_RECURSE files ${prefix}/${name})
  list(LENGTH files count)
  if(NOT count EQUAL 1)
    message(FATAL_ERROR "${count} installed files are called ${name}, not one")
  endif()
  cmake_path(GET files PARENT_PATH folder)
  set(${result} ${folder} PARENT_SCOPE)
endfunction()

file(REMOVE_RECURSE ${WORK})
run(${CMAKE_COMMAND} --install ${BUILD} --prefix ${prefix})

folder_of(kelvra.pc pkgconfig)
set(ENV{PKG_CONFIG_PATH} ${pkgconfig})
if(TOOLCHAIN)
  # It looks for packages where its target's own are.
  folder_of(kelvraConfig.cmake package)
  set(options -DCMAKE_TOOLCHAIN_FILE=${TOOLCHAIN} -Dkelvra_DIR=${package})
else()
  set(options -DCMAKE_PREFIX_PATH=${prefix})
endif()
run(${CMAKE_COMMAND} -G Ninja -S ${CMAKE_CURRENT_LIST_DIR} -B ${consumer} ${options})
run(${CMAKE_COMMAND} --build ${consumer})

set(ENV{WINEPATH} ${prefix}/bin)
file(GLOB programs ${consumer}/bin/*)
if(NOT programs)
  message(FATAL_ERROR "No program was built in ${consumer}")
endif()
foreach(program IN LISTS programs)
  run(${EMULATOR} ${program})
endforeach()
