# The ZPXGraph package for CMake. A host writes
#     find_package(ZPXGraph CONFIG REQUIRED)
#     target_link_libraries(app PRIVATE ZPXGraph::ZPXGraph)
# and gets the headers, the import library and the DLL of its own
# architecture (32 or 64 bits, by the size of its pointers). Nothing is
# copied: the host puts the contents of ZPXGraph_BIN_DIR beside its program.
get_filename_component(_zpx_root "${CMAKE_CURRENT_LIST_DIR}/.." ABSOLUTE)
if(CMAKE_SIZEOF_VOID_P EQUAL 8)
    set(_zpx_arch x64)
elseif(CMAKE_SIZEOF_VOID_P EQUAL 4)
    set(_zpx_arch x86)
else()
    set(ZPXGraph_FOUND FALSE)
    set(ZPXGraph_NOT_FOUND_MESSAGE "ZPXGraph: no C++ compiler is enabled to tell the architecture")
    return()
endif()

set(ZPXGraph_BIN_DIR "${_zpx_root}/bin/${_zpx_arch}")
if(NOT EXISTS "${ZPXGraph_BIN_DIR}/ZPXGraph.dll")
    set(ZPXGraph_FOUND FALSE)
    set(ZPXGraph_NOT_FOUND_MESSAGE "ZPXGraph: this kit has no ${_zpx_arch} library")
    return()
endif()

if(NOT TARGET ZPXGraph::ZPXGraph)
    add_library(ZPXGraph::ZPXGraph SHARED IMPORTED)
    set_target_properties(ZPXGraph::ZPXGraph PROPERTIES
        IMPORTED_LOCATION "${ZPXGraph_BIN_DIR}/ZPXGraph.dll"
        IMPORTED_IMPLIB "${_zpx_root}/lib/${_zpx_arch}/ZPXGraph.lib.a"
        INTERFACE_INCLUDE_DIRECTORIES "${_zpx_root}/include"
        # The class layout of the headers depends on these.
        INTERFACE_COMPILE_DEFINITIONS "WINVER=0x0601;_WIN32_WINNT=0x0601;_WIN32_IE=0x0600;NOMINMAX"
        INTERFACE_COMPILE_FEATURES cxx_std_17
        INTERFACE_LINK_LIBRARIES "comctl32;gdi32;user32")
endif()
set(ZPXGraph_FOUND TRUE)
unset(_zpx_arch)
unset(_zpx_root)
