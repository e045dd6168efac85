# Libraries of this machine's packages that are headers alone, for a build that may see none of the
# machine's other headers.
function(delvior_header_library target folder)
  find_path(${folder}_PARENT ${folder} REQUIRED NO_CMAKE_FIND_ROOT_PATH)
  file(MAKE_DIRECTORY ${PROJECT_BINARY_DIR}/headers)
  file(CREATE_LINK ${${folder}_PARENT}/${folder} ${PROJECT_BINARY_DIR}/headers/${folder} SYMBOLIC)
  add_library(${target} INTERFACE IMPORTED GLOBAL)
  target_include_directories(${target} INTERFACE ${PROJECT_BINARY_DIR}/headers)
endfunction()

delvior_header_library(CLI11::CLI11 CLI)
delvior_header_library(nlohmann_json::nlohmann_json nlohmann)
