# How every target of this project is compiled: warnings as errors, sanitizers, and the flags of the Windows programs.
# Paths below the checkout are told to ccache as relative ones, so that another checkout finds what this one has compiled.
find_program(CCACHE_PROGRAM ccache)
if(CCACHE_PROGRAM)
  set(CMAKE_CXX_COMPILER_LAUNCHER
    ${CMAKE_COMMAND} -E env CCACHE_BASEDIR=${CMAKE_SOURCE_DIR} CCACHE_NOHASHDIR=1 ${CCACHE_PROGRAM})
endif()

add_library(vexa_compile INTERFACE)
target_include_directories(vexa_compile INTERFACE ${CMAKE_SOURCE_DIR}/src)
target_compile_options(vexa_compile INTERFACE
  -Wall -Wextra -Wshadow -Wconversion -Wold-style-cast -Wnon-virtual-dtor -Woverloaded-virtual -Werror)
if(WIN32)
  # One thread makes all static objects, as the others only write files: nothing need guard that. No code asks for type
  # information.
  target_compile_options(vexa_compile INTERFACE $<$<COMPILE_LANGUAGE:CXX>:-fno-threadsafe-statics>
                                                $<$<COMPILE_LANGUAGE:CXX>:-fno-rtti>)
endif()
if(CMAKE_CXX_COMPILER_ID STREQUAL "GNU")
  target_compile_options(vexa_compile INTERFACE -Wduplicated-branches -Wlogical-op -Wsuggest-override)
else()
  target_compile_options(vexa_compile INTERFACE -Winconsistent-missing-override -Wsuggest-override)
endif()

# The product's text is that of the ANSI code page: plain char is a byte, and no wide entry point is called, because
# Windows 98 has none.
if(WIN32)
  add_compile_definitions(WINVER=0x0500 _WIN32_WINNT=0x0500 _WIN32_IE=0x0600 NOMINMAX WIN32_LEAN_AND_MEAN STRICT)
  add_link_options(-static -Wl,--nxcompat -Wl,--dynamicbase)
  # Leaves out data that nothing uses, and functions that nothing uses of libraries compiled so. Functions of our own
  # would stay, as the unwind table of their object file names them all: the gate unused.py finds those that nothing uses.
  add_compile_options(-ffunction-sections -fdata-sections)
  add_link_options(-Wl,--gc-sections)
  if(CMAKE_SIZEOF_VOID_P EQUAL 4)
    add_link_options(-Wl,--major-subsystem-version,4 -Wl,--minor-subsystem-version,0
                     -Wl,--major-os-version,4 -Wl,--minor-os-version,0)
  else()
    add_link_options(-Wl,--high-entropy-va)
  endif()
endif()

if(VEXA_SANITIZE)
  add_compile_options(-fsanitize=address,undefined -fno-sanitize-recover=all -fno-omit-frame-pointer)
  add_link_options(-fsanitize=address,undefined)
endif()

if(VEXA_FUZZ)
  # The fuzzer steers by the coverage of the code under test.
  add_compile_options(-fsanitize=fuzzer-no-link)
endif()

# Compiles what waits for the user or for a device in the fewest bytes; -Os stands after the -O of the build. In the 32-bit
# program, arguments are pushed, which takes fewer bytes than stores into room made for them; GCC permits it only without
# the probing of the stack page by page, so that no function may have a frame of a page. Calls need not align the stack
# either: the functions with vector instructions align their own.
set(vexa_small_options -Os)
if(WIN32 AND CMAKE_SIZEOF_VOID_P EQUAL 4)
  list(APPEND vexa_small_options -mno-stack-arg-probe -mpreferred-stack-boundary=2 -Wframe-larger-than=4000)
endif()
# The linker makes one of equal inline functions, but not of the copies that GCC adapts to the calls of one file.
list(APPEND vexa_small_options -fno-declone-ctor-dtor -fno-ipa-sra -fno-ipa-cp)

function(vexa_small name)
  if(WIN32)
    target_compile_options(${name} PRIVATE $<$<COMPILE_LANGUAGE:CXX>:${vexa_small_options}>)
  endif()
endfunction()

# Makes the program's unwind table smaller once it is linked. Its symbols, which would move, are left out.
function(vexa_share_unwind_heads name)
  if(WIN32 AND CMAKE_SIZEOF_VOID_P EQUAL 4)
    target_link_options(${name} PRIVATE -s)
    set(script ${CMAKE_SOURCE_DIR}/cmake/share_unwind_heads.py)
    add_custom_command(TARGET ${name} POST_BUILD COMMAND /usr/bin/python3 -B ${script} $<TARGET_FILE:${name}> VERBATIM)
    set_target_properties(${name} PROPERTIES LINK_DEPENDS ${script})
  endif()
endfunction()

# One library a folder of src/; the sources after SMALL are compiled in the fewest bytes. The libraries named after DEPENDS
# are the folders below it, the only ones it may include.
function(vexa_library name)
  cmake_parse_arguments(ARG "" "" "SOURCES;SMALL;DEPENDS" ${ARGN})
  add_library(${name} STATIC ${ARG_SOURCES} ${ARG_SMALL})
  if(WIN32 AND ARG_SMALL)
    set_source_files_properties(${ARG_SMALL} PROPERTIES COMPILE_OPTIONS "${vexa_small_options}")
  endif()
  target_link_libraries(${name} PUBLIC vexa_compile ${ARG_DEPENDS})
endfunction()
