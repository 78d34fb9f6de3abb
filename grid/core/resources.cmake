# The grid's registries and the BMP reader of its bitmap registry; included by this folder's
# CMakeLists.txt.
add_library(kervgridres STATIC
  ${CMAKE_CURRENT_LIST_DIR}/PtrList.cpp
  ${CMAKE_CURRENT_LIST_DIR}/BmpReader.cpp
)
target_link_libraries(kervgridres PUBLIC kervplatform)
