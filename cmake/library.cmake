# libzulgens8.so.6.1 and its companion libzulcore.so.6.1, and their archives.

if(ZULGEN_SANITIZE)
  # Tests put guard pages around the arrays of generated code.
  set_source_files_properties(${ZULGEN_KERNEL_SOURCES} ${ZULGEN_DISPATCH_SOURCES} PROPERTIES
    COMPILE_OPTIONS -fno-sanitize=all)
endif()
# A plan's tables are made of sines and cosines, each by a call of the function that its source names:
# a compiler that knows what these compute would make one call of two.
set_source_files_properties(dct4/dct4_32f.cpp dct4/dct4_64f.cpp PROPERTIES COMPILE_OPTIONS
  "-fno-builtin-sinf;-fno-builtin-cosf;-fno-builtin-sin;-fno-builtin-cos")
add_library(zulgen_kernels OBJECT
  ${ZULGEN_KERNEL_SOURCES} ${ZULGEN_BODY_HEADERS} ${ZULGEN_EXPORTS}
  wht/long_orders.cpp dct4/dct4_32f.cpp dct4/dct4_64f.cpp)
target_include_directories(zulgen_kernels PRIVATE ${PROJECT_SOURCE_DIR} ${ZULGEN_GENERATED_DIR})
target_link_libraries(zulgen_kernels PRIVATE zulgen_kernel_code)
set_target_properties(zulgen_kernels PROPERTIES
  CXX_VISIBILITY_PRESET hidden VISIBILITY_INLINES_HIDDEN ON)

zulgen_library(TARGET zulcore EXPORTS ${PROJECT_SOURCE_DIR}/core/zulcore.map
  SOURCES core/zulcore.cpp LIBRARIES c)
zulgen_library(TARGET zulgens8 EXPORTS ${ZULGEN_EXPORTS}
  SOURCES frame/version.cpp wht/buffer_size.cpp ${ZULGEN_DISPATCH_SOURCES}
  OBJECTS $<TARGET_OBJECTS:zulgen_kernels> LIBRARIES zulcore m)
