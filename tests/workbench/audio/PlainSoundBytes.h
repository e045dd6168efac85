// Uncompressed sound files made byte by byte: WAV and AU.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

inline std::string LittleEndian(uint64_t value, size_t size) {
  std::string bytes(size, '\0');
  for (size_t i = 0; i < size; ++i) bytes[i] = static_cast<char>(value >> (8 * i) & 0xFF);
  return bytes;
}

inline std::string BigEndian(uint64_t value, size_t size) {
  const std::string bytes = LittleEndian(value, size);
  return {bytes.rbegin(), bytes.rend()};
}

// A chunk of RIFF's kind: its id, its size, its content, and a byte that makes the length even.
inline std::string Chunk(std::string_view id, std::string_view content) {
  std::string chunk = std::string(id) + LittleEndian(content.size(), 4);
  return chunk.append(content).append(content.size() % 2, '\0');
}

// samples   interleaved, signed 16 bit
inline std::string WavBytes(const std::vector<int16_t>& samples, uint32_t channels = 2,
                            uint32_t rateHz = 44100) {
  std::string data;
  for (const int16_t sample : samples) data += LittleEndian(static_cast<uint16_t>(sample), 2);
  const std::string form = LittleEndian(1, 2) + LittleEndian(channels, 2) +
                           LittleEndian(rateHz, 4) +
                           LittleEndian(uint64_t{rateHz} * channels * 2, 4) +
                           LittleEndian(uint64_t{channels} * 2, 2) + LittleEndian(16, 2);
  return Chunk("RIFF", "WAVE" + Chunk("fmt ", form) + Chunk("data", data));
}

// The plainest header that states a length: mark, offset of the samples, their bytes, coding 3
// (signed 16 bit, big-endian), rate, channels.
inline std::string AuBytes(uint32_t frames) {
  return ".snd" + BigEndian(24, 4) + BigEndian(uint64_t{frames} * 4, 4) + BigEndian(3, 4) +
         BigEndian(44100, 4) + BigEndian(2, 4) + std::string(size_t{frames} * 4, '\x11');
}
