# Writes OUTPUT, the source of the table of linked resources, from the PNGs that IMAGES lists:
# cmake "-DIMAGES=FILE;FILE" -DOUTPUT=FILE -P LinkImages.cmake
set(arrays "")
set(rows "")
foreach(image IN LISTS IMAGES)
  get_filename_component(name ${image} NAME_WE)
  file(READ ${image} bytes HEX)
  string(REGEX REPLACE "(..)" "0x\\1," bytes ${bytes})
  string(APPEND arrays "constexpr uint8_t k${name}[] = {${bytes}};\n")
  string(APPEND rows "    {\"${name}\", \"PNG\", k${name}},\n")
endforeach()
file(WRITE ${OUTPUT} "// The linked images; made by LinkImages.cmake.
#include \"resources/LinkedResources.h\"

namespace {

${arrays}
constexpr LinkedResource kResources[] = {
${rows}};

}  // namespace

const std::span<const LinkedResource> linkedResources = kResources;
")
