# What the targets of this build share.

set(kelvra_warnings -Wall -Wextra -Wconversion -Wshadow -Wpedantic -Werror)

function(_kelvra_common target)
  target_compile_options(${target} PRIVATE ${kelvra_warnings})
  if(KELVRA_SANITIZE)
    set(flags -fsanitize=${KELVRA_SANITIZE} -fno-sanitize-recover=all -fno-omit-frame-pointer)
    target_compile_options(${target} PRIVATE ${flags})
    target_link_options(${target} PUBLIC ${flags})
  endif()
  if(KELVRA_FUZZ)
    target_compile_options(${target} PRIVATE -fsanitize=fuzzer-no-link)
  endif()
  if(WIN32)
    # A bare Windows has none of the compiler's own libraries.
    target_link_options(${target} PRIVATE -static -static-libgcc -static-libstdc++)
  endif()
endfunction()

# Sources of the library: no exceptions leave it, so none are compiled in.
function(kelvra_library_options target)
  _kelvra_common(${target})
  target_compile_options(${target} PRIVATE -fno-exceptions -fno-rtti)
  set_target_properties(${target} PROPERTIES
    CXX_VISIBILITY_PRESET hidden VISIBILITY_INLINES_HIDDEN ON
    POSITION_INDEPENDENT_CODE ON)
endfunction()

# Tools and tests.
function(kelvra_program_options target)
  _kelvra_common(${target})
  if(KELVRA_BUILD_TESTS)
    # What runs only in tests takes longer to optimize than to run. The library is tested as it ships.
    target_compile_options(${target} PRIVATE -O0 -g1)
  endif()
endfunction()

# Exports from the shared library exactly the names that the .def file lists.
# The linker takes the file as it is for a DLL; elsewhere a version script is
# made from it, which also hides what the C++ runtime's templates would export.
function(kelvra_exports target def)
  set_property(DIRECTORY APPEND PROPERTY CMAKE_CONFIGURE_DEPENDS ${def})
  if(WIN32)
    target_sources(${target} PRIVATE ${def})
    return()
  endif()
  file(STRINGS ${def} lines)
  set(script "{\n  global:\n")
  set(in_exports FALSE)
  foreach(line IN LISTS lines)
    string(REGEX REPLACE ";.*" "" line "${line}")
    string(STRIP "${line}" line)
    if(line MATCHES "^EXPORTS[ \t]*(.*)$")
      set(in_exports TRUE)
      set(line "${CMAKE_MATCH_1}")
    endif()
    if(in_exports AND line MATCHES "^([A-Za-z_][A-Za-z0-9_]*)")
      string(APPEND script "    ${CMAKE_MATCH_1};\n")
    endif()
  endforeach()
  string(APPEND script "  local: *;\n};\n")
  set(map ${CMAKE_CURRENT_BINARY_DIR}/${target}.map)
  file(CONFIGURE OUTPUT ${map} CONTENT "${script}" @ONLY)
  target_link_options(${target} PRIVATE -Wl,--version-script=${map})
  if(NOT KELVRA_SANITIZE)  # a sanitizer's runtime may be in the program only
    target_link_options(${target} PRIVATE -Wl,--no-undefined)
  endif()
  set_property(TARGET ${target} APPEND PROPERTY LINK_DEPENDS ${map})
endfunction()

# The headers of the interface, relative to src/: kelvra.h and whatever it includes
# in turn. They include each other by paths relative to themselves, so that they
# work wherever they are installed.
function(kelvra_public_headers result)
  set(pending api/kelvra.h)
  set(headers)
  while(pending)
    list(POP_FRONT pending header)
    list(APPEND headers ${header})
    set(path ${PROJECT_SOURCE_DIR}/src/${header})
    if(NOT EXISTS ${path})  # the check of the headers fails for it
      message(WARNING "No ${path}, which a public header includes")
      continue()
    endif()
    set_property(DIRECTORY APPEND PROPERTY CMAKE_CONFIGURE_DEPENDS ${path})
    cmake_path(GET header PARENT_PATH room)
    file(STRINGS ${path} includes REGEX "^#[ \t]*include[ \t]+\"")
    foreach(include IN LISTS includes)
      string(REGEX REPLACE "^[^\"]*\"([^\"]*)\".*" "\\1" include "${include}")
      set(include ${room}/${include})
      cmake_path(NORMAL_PATH include)
      if(NOT include IN_LIST headers AND NOT include IN_LIST pending)
        list(APPEND pending ${include})
      endif()
    endforeach()
  endwhile()
  set(${result} ${headers} PARENT_SCOPE)
endfunction()

# Makes header-only libraries of the build machine usable for any target. The
# whole of its include directory would bring its C library's headers along.
# Sets <result> to the include directory.
function(kelvra_host_headers result)
  set(directory ${CMAKE_BINARY_DIR}/host-headers)
  file(MAKE_DIRECTORY ${directory})
  foreach(name IN LISTS ARGN)
    set(found found-NOTFOUND)
    foreach(place IN ITEMS /usr/local/include /usr/include)
      if(IS_DIRECTORY ${place}/${name})
        set(found ${place}/${name})
        break()
      endif()
    endforeach()
    if(NOT found)
      message(FATAL_ERROR "No headers ${name}/ on this machine; scripts/setup.sh installs them")
    endif()
    file(CREATE_LINK ${found} ${directory}/${name} SYMBOLIC)
  endforeach()
  set(${result} ${directory} PARENT_SCOPE)
endfunction()
