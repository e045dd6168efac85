// Files of coded sound made byte by byte: silence as Opus in Ogg, and films in Matroska.
#pragma once

#include <bit>
#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include "tests/workbench/audio/PlainSoundBytes.h"

// A page of an Ogg stream, with the checksum that readers insist on.
//
// flags      2 on the stream's first page, 4 on its last
// position   48ths of a millisecond up to the end of this page
inline std::string OggPage(uint64_t flags, uint64_t position, uint64_t number,
                           const std::vector<std::string>& packets) {
  const std::string head = "OggS" + LittleEndian(flags << 8U, 2) + LittleEndian(position, 8) +
                           LittleEndian(1, 4) + LittleEndian(number, 4);
  std::string rest = LittleEndian(packets.size(), 1);
  for (const std::string& packet : packets) rest += LittleEndian(packet.size(), 1);
  for (const std::string& packet : packets) rest += packet;
  uint32_t checksum = 0;
  for (const char byte : head + std::string(4, '\0') + rest) {
    checksum ^= uint32_t{static_cast<unsigned char>(byte)} << 24U;
    for (int bit = 0; bit < 8; ++bit)
      checksum = checksum << 1U ^ ((checksum & 0x80000000U) != 0 ? 0x04C11DB7U : 0U);
  }
  return head + LittleEndian(checksum, 4) + rest;
}

// An Opus file of silence, a second a page.
inline std::string OpusBytes(uint64_t seconds) {
  const std::string description = "OpusHead" + LittleEndian(0x0201, 2) + LittleEndian(0, 2) +
                                  LittleEndian(48000, 4) + std::string(3, '\0');
  std::string bytes =
      OggPage(2, 0, 0, {description}) + OggPage(0, 0, 1, {"OpusTags" + std::string(8, '\0')});
  const std::vector<std::string> second(50, "\xFC\xFF\xFE");
  for (uint64_t i = 1; i <= seconds; ++i)
    bytes += OggPage(i == seconds ? 4 : 0, i * 48000, i + 1, second);
  return bytes;
}

inline std::string Element(std::string_view id, std::string_view content) {
  return std::string(id) + "\x01" + BigEndian(content.size(), 7) + std::string(content);
}

inline std::string Element(std::string_view id, uint64_t value) {
  return Element(id, BigEndian(value, 8));
}

// A packet of a Matroska file: track 1 is sound of one channel at 8000 Hz, 16 bit, track 2
// subtitles.
struct MatroskaPacket {
  uint64_t track;
  uint64_t milliseconds;
  std::string content;
};

// A Matroska file whose header states `milliseconds` for the whole of it.
inline std::string MatroskaBytes(double milliseconds, const std::vector<MatroskaPacket>& packets) {
  std::string segment =
      Element("\x15\x49\xA9\x66", Element("\x44\x89", std::bit_cast<uint64_t>(milliseconds)));
  const std::string sound = Element("\xD7", 1) + Element("\x83", 2) +
                            Element("\x86", "A_PCM/INT/LIT") + Element("\xE1", Element("bd", 16));
  const std::string text =
      Element("\xD7", 2) + Element("\x83", 17) + Element("\x86", "S_TEXT/UTF8");
  segment += Element("\x16\x54\xAE\x6B", Element("\xAE", sound) + Element("\xAE", text));
  for (const MatroskaPacket& packet : packets) {
    const std::string block = BigEndian(0x80 | packet.track, 1) + BigEndian(0, 2) + "\x80";
    segment += Element("\x1F\x43\xB6\x75", Element("\xE7", packet.milliseconds) +
                                               Element("\xA3", block + packet.content));
  }
  return Element("\x1A\x45\xDF\xA3", Element("\x42\x82", "matroska")) +
         Element("\x18\x53\x80\x67", segment);
}
