# Makes the property list, and sets property_list to its file.
#
# Its maker runs on the machine that builds, also when that builds for another system; so it's
# compiled by that machine's own compiler.
find_program(DELVIOR_HOST_CXX NAMES c++ g++ clang++ REQUIRED)
set(maker_source ${PROJECT_SOURCE_DIR}/tools/property-list/MakePropertyList.cpp)
set(maker ${CMAKE_CURRENT_BINARY_DIR}/make_property_list)
set(property_list ${CMAKE_CURRENT_BINARY_DIR}/PropertyList.bin)
add_custom_command(
  OUTPUT ${property_list}
  COMMAND ${DELVIOR_HOST_CXX} -std=c++20 -Wall -Wextra -Wconversion -Wshadow -Werror
    -I${PROJECT_SOURCE_DIR}/src -I${PROJECT_SOURCE_DIR}/src/sdk
    -MMD -MF ${maker}.d -MT ${property_list} ${maker_source} -o ${maker}
  COMMAND ${maker} ${property_list}
  DEPENDS ${maker_source}
  DEPFILE ${maker}.d
  VERBATIM
)
