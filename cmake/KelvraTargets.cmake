# Shared settings and functions for targets.

set(kelvra_warnings -Wall -Wextra -Wconversion -Wshadow -Wpedantic -Werror)
if(NOT PROJECT_IS_TOP_LEVEL)
  set(kelvra_warnings -Wno-error)  # whatever another project's flags ask for
endif()

function(_kelvra_common target)
  target_compile_options(${target} PRIVATE ${kelvra_warnings})
  # Keep paths of this machine out of the output.
  target_compile_options(${target} PRIVATE
    -ffile-prefix-map=${PROJECT_BINARY_DIR}=build -ffile-prefix-map=${PROJECT_SOURCE_DIR}=.)
  if(KELVRA_SANITIZE)
    set(flags -fsanitize=${KELVRA_SANITIZE} -fno-sanitize-recover=all -fno-omit-frame-pointer)
    # AddressSanitizer catches these too, and their checks are a quarter of what there is to compile.
    list(APPEND flags -fno-sanitize=null,object-size)
    target_compile_options(${target} PRIVATE ${flags})
    target_compile_definitions(${target} PRIVATE KELVRA_SANITIZED)
    target_link_options(${target} PUBLIC ${flags})
    # The runtime that a C program gets lacks what the library, which is C++, needs of it.
    set_target_properties(${target} PROPERTIES LINKER_LANGUAGE CXX)
  endif()
  if(WIN32)
    # A plain Windows has none of the compiler's libraries.
    target_link_options(${target} PRIVATE -static -static-libgcc -static-libstdc++)
    target_link_options(${target} PRIVATE -Wl,--no-insert-timestamp)  # the same octets from each build
  endif()
endfunction()

# Sources of the library, which uses neither exceptions nor RTTI.
function(kelvra_library_options target)
  _kelvra_common(${target})
  target_compile_options(${target} PRIVATE -fno-exceptions -fno-rtti)
  if(KELVRA_FUZZ)
    # Fuzzers look for inputs that reach new code of the library.
    target_compile_options(${target} PRIVATE -fsanitize=fuzzer-no-link)
  endif()
  set_target_properties(${target} PROPERTIES
    CXX_VISIBILITY_PRESET hidden VISIBILITY_INLINES_HIDDEN ON
    POSITION_INDEPENDENT_CODE ON)
endfunction()

# Tools, which are tested as shipped.
function(kelvra_tool_options target)
  _kelvra_common(${target})
endfunction()

# Tests and other programs that do not ship.
function(kelvra_program_options target)
  _kelvra_common(${target})
  if(KELVRA_BUILD_TESTS)
    # Test code takes longer to optimize than to run. The library is tested as shipped.
    target_compile_options(${target} PRIVATE -O0 -g1)
    # GCC would look for garbage as soon as it has loaded the precompiled headers.
    target_compile_options(${target} PRIVATE $<$<CXX_COMPILER_ID:GNU>:--param=ggc-min-heapsize=1000000>)
  endif()
endfunction()

# Exports from the shared library exactly the names in the .def file. For a DLL the linker reads that file; elsewhere
# it becomes a version script, which also hides what the C++ runtime's templates would export.
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

# Sets the name and version of a shipped shared library.
function(kelvra_shared_library target description)
  if(NOT WIN32)
    set_target_properties(${target} PROPERTIES VERSION ${PROJECT_VERSION} SOVERSION ${PROJECT_VERSION_MAJOR})
    return()
  endif()
  set(version ${CMAKE_CURRENT_BINARY_DIR}/${target}_version.rc)
  configure_file(${PROJECT_SOURCE_DIR}/cmake/version.rc.in ${version} @ONLY)
  target_sources(${target} PRIVATE ${version})
  # Programs load it under this name.
  set_target_properties(${target} PROPERTIES PREFIX "")
endfunction()

# Sets <result> to the types that a header describes at its outermost level. Each has its own decoder.
function(_kelvra_described_types result header)
  file(STRINGS ${header} lines
    REGEX "^([a-z]|  KELVRA_(SEQUENCE|CHOICE|ENUMERATED))")
  set(types)
  foreach(line IN LISTS lines)
    if(line MATCHES "^template")
      set(type "")
      set(is_template TRUE)
    elseif(line MATCHES "^struct ([A-Za-z0-9]+)")
      set(type ${CMAKE_MATCH_1})
      if(is_template)
        set(type "")
      endif()
      set(is_template FALSE)
    elseif(line MATCHES "^[a-z]")
      set(is_template FALSE)
    elseif(type)
      list(APPEND types ${type})
    endif()
  endforeach()
  set(${result} ${types} PARENT_SCOPE)
endfunction()

# Writes one unit per header with descriptions. It instantiates the function templates of <signatures> for each type of
# the header, which replaces TYPE. <directory>/declarations.h declares all instances extern, so no other unit
# instantiates them. Sets <result> to the units; they include <definitions> and that header.
function(kelvra_type_units result directory definitions signatures)
  set(include_dir ${PROJECT_SOURCE_DIR}/include)
  file(GLOB_RECURSE headers CONFIGURE_DEPENDS RELATIVE ${include_dir}
    ${include_dir}/kelvra/h225/*.h ${include_dir}/kelvra/h235/*.h ${include_dir}/kelvra/h245/*.h)
  set(units)
  set(forward "")
  set(declarations "")
  foreach(header IN LISTS headers)
    set_property(DIRECTORY APPEND PROPERTY CMAKE_CONFIGURE_DEPENDS ${include_dir}/${header})
    _kelvra_described_types(types ${include_dir}/${header})
    if(NOT types)
      continue()
    endif()
    string(REGEX MATCH "h2[0-9][0-9]" family ${header})
    set(by_hand ${family})
    if(family STREQUAL h235)
      set(by_hand h225)
    endif()
    set(includes "")
    foreach(include IN ITEMS ${header} ${by_hand}/decoders_by_hand.h ${definitions} declarations.h)
      string(APPEND includes "#include \"${include}\"\n")
    endforeach()
    set(instances "")
    foreach(type IN LISTS types)
      string(APPEND forward "namespace kelvra::${family} { struct ${type}; }\n")
      foreach(signature IN LISTS signatures)
        string(REPLACE TYPE kelvra::${family}::${type} instance "template ${signature};\n")
        string(APPEND declarations "extern ${instance}")
        string(APPEND instances "${instance}")
      endforeach()
    endforeach()
    string(REGEX REPLACE "[/.]" "_" name ${header})
    set(unit ${directory}/${name}.cpp)
    file(CONFIGURE OUTPUT ${unit} @ONLY CONTENT "${includes}\n${instances}")
    list(APPEND units ${unit})
  endforeach()
  file(CONFIGURE OUTPUT ${directory}/declarations.h @ONLY CONTENT
    "#pragma once\n\n${forward}\n${declarations}")
  set(${result} ${units} PARENT_SCOPE)
endfunction()

# Makes header-only libraries of the build machine usable for any target, without its C library's headers. Sets <result>
# to the include directory.
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
