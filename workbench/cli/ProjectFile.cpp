// Projects as JSON.
#include "workbench/cli/ProjectFile.h"

#include <fstream>
#include <nlohmann/json.hpp>
#include <sstream>

#include "workbench/Failure.h"
#include "workbench/host/ParameterText.h"

namespace {

using nlohmann::json;

constexpr const char* kFormat = "delvior-workbench-project";
constexpr int kFormatVersion = 1;

[[noreturn]] void Refuse(const std::filesystem::path& path, const std::string& why) {
  throw JobFailure(path.string() + ": is not a project of the workbench (" + why +
                   "). Name another with --project, or remove it to begin anew.");
}

std::string HexText(const std::vector<uint8_t>& bytes) {
  constexpr char kDigits[] = "0123456789abcdef";
  std::string text;
  text.reserve(bytes.size() * 2);
  for (const uint8_t byte : bytes) {
    text += kDigits[byte >> 4];
    text += kDigits[byte & 15];
  }
  return text;
}

int HexDigit(char digit) {
  if (digit >= '0' && digit <= '9') return digit - '0';
  if (digit >= 'a' && digit <= 'f') return digit - 'a' + 10;
  return -1;
}

std::vector<uint8_t> BytesFromHex(const std::filesystem::path& path, const std::string& text) {
  std::vector<uint8_t> bytes;
  for (size_t i = 0; i + 1 < text.size(); i += 2) {
    const int high = HexDigit(text[i]);
    const int low = HexDigit(text[i + 1]);
    if (high < 0 || low < 0) Refuse(path, "its record is not hexadecimal");
    bytes.push_back(static_cast<uint8_t>(high * 16 + low));
  }
  if (text.size() % 2 != 0) Refuse(path, "its record ends within a byte");
  return bytes;
}

// A conversion to a narrower type would take any number without a word.
template <typename Whole>
Whole WholeFrom(const std::filesystem::path& path, const json& stored, const char* name) {
  const json& number = stored.at(name);
  if (!number.is_number_integer() || number.get<double>() != number.get<Whole>()) {
    Refuse(path, std::string("a keyframe's ") + name + " is no whole number of 32 bits");
  }
  return number.get<Whole>();
}

Keyframe KeyframeFrom(const std::filesystem::path& path, const json& stored) {
  Keyframe keyframe;
  keyframe.time = {WholeFrom<A_long>(path, stored, "tick"),
                   WholeFrom<A_u_long>(path, stored, "scale")};
  keyframe.value = stored.at("value").get<double>();
  if (keyframe.time.scale == 0) Refuse(path, "a keyframe's scale is 0");
  return keyframe;
}

ProjectFile ProjectFrom(const std::filesystem::path& path, const json& stored) {
  if (stored.at("format") != kFormat || stored.at("version") != kFormatVersion) {
    Refuse(path, "its format is another");
  }
  ProjectFile project;
  project.values = stored.at("parameters").get<std::map<std::string, std::string>>();
  for (const auto& [name, keyframes] : stored.at("keyframes").items()) {
    for (const json& keyframe : keyframes) {
      project.keyframes[name].push_back(KeyframeFrom(path, keyframe));
    }
  }
  project.record = BytesFromHex(path, stored.at("record").get<std::string>());
  return project;
}

}  // namespace

std::optional<ProjectFile> ReadProjectFile(const std::filesystem::path& path) {
  std::error_code code;
  const auto type = std::filesystem::status(path, code).type();
  if (type == std::filesystem::file_type::not_found) return std::nullopt;
  if (type != std::filesystem::file_type::regular) Refuse(path, "it is no plain file");
  std::ifstream file(path, std::ios::binary);
  std::ostringstream text;
  text << file.rdbuf();
  if (!file) Refuse(path, "it can't be read");
  try {
    return ProjectFrom(path, json::parse(text.str()));
  } catch (const json::parse_error& failure) {
    Refuse(path, "it is no JSON from byte " + std::to_string(failure.byte) + " on");
  } catch (const json::exception&) {
    Refuse(path, "a part of it is missing or is of another kind");
  }
}

void RestoreParameters(const ProjectFile& project, const std::filesystem::path& path,
                       HostSession& session, EffectInstance& instance) {
  const ParameterList& parameters = session.Parameters();
  size_t last = 0;
  try {
    for (const auto& [name, value] : project.values) {
      last = parameters.Find(name);
      SetFromText(instance, parameters, last, value);
    }
    for (const auto& [name, keyframes] : project.keyframes) {
      instance.streams[parameters.Find(name)].Set(keyframes);
    }
  } catch (const UsageFailure& failure) {
    throw JobFailure(path.string() + ": " + failure.what());
  }
  if (last > 0) session.UserChanged(instance, last);
}

std::string ProjectFileText(const ParameterList& parameters, const EffectInstance& instance,
                            const std::vector<uint8_t>& record) {
  json stored{{"format", kFormat}, {"version", kFormatVersion}, {"record", HexText(record)}};
  json& values = stored["parameters"] = json::object();
  for (size_t i = 1; i < parameters.Count(); ++i) {
    if (HasValue(parameters.At(i).def.param_type)) {
      values[parameters.At(i).path] = ValueText(instance, parameters, i);
    }
  }
  json& streams = stored["keyframes"] = json::object();
  for (const auto& [index, stream] : instance.streams) {
    json& list = streams[parameters.At(index).path] = json::array();
    for (const Keyframe& keyframe : stream.Keyframes()) {
      list.push_back({{"tick", keyframe.time.value},
                      {"scale", keyframe.time.scale},
                      {"value", keyframe.value}});
    }
  }
  return stored.dump(1) + "\n";
}
