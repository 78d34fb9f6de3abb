# The framework's drawing classes; included by this folder's CMakeLists.txt.
target_sources(kervplatform PRIVATE
  ${CMAKE_CURRENT_LIST_DIR}/CBitmap.cpp
  ${CMAKE_CURRENT_LIST_DIR}/CDC.cpp
  ${CMAKE_CURRENT_LIST_DIR}/CFont.cpp
  ${CMAKE_CURRENT_LIST_DIR}/CGdiObject.cpp
  ${CMAKE_CURRENT_LIST_DIR}/CPaintDC.cpp
)
