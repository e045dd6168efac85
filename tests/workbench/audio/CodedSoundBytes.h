// Files of coded sound made byte by byte: silence as MP3 frames, as Opus in Ogg, and in Matroska.
#pragma once

#include <bit>
#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include "tests/workbench/audio/PlainSoundBytes.h"

// A frame of MPEG layer 3 that holds silence: 1152 stereo frames at 44100 Hz.
//
// head   its third byte: coding rate and sampling rate; 0x90 is 128 kbit a second
// size   bytes, which follow from the coding rate
inline std::string SilentMp3Frame(char head = '\x90', size_t size = 417) {
  return std::string("\xFF\xFB") + head + std::string(size - 3, '\0');
}

// The same in its low-rate form: 576 frames of one channel at 22050 Hz.
inline std::string SilentLowRateMp3Frame() {
  const std::string frame = "\xFF\xF3\x80\xC0";
  return frame + std::string(208 - frame.size(), '\0');
}

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
  const std::string unsealed = head + std::string(4, '\0').append(rest);
  uint32_t checksum = 0;
  for (const char byte : unsealed) {
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

// A packet of a Matroska file: track 1 is sound of two channels at 44100 Hz, track 2 subtitles.
struct MatroskaPacket {
  uint64_t track = 1;
  uint64_t milliseconds = 0;
  std::string content;
};

// A Matroska file whose header states `milliseconds` for the whole of it.
//
// codec   of track 1: A_MPEG/L3, or A_PCM/INT/LIT for samples of 16 bits
inline std::string MatroskaBytes(uint64_t milliseconds, const std::vector<MatroskaPacket>& packets,
                                 std::string_view codec = "A_MPEG/L3") {
  const std::string lengthBytes =
      BigEndian(std::bit_cast<uint64_t>(static_cast<double>(milliseconds)), 8);
  const std::string info =
      Element("\x2A\xD7\xB1", BigEndian(1'000'000, 4)) + Element("\x44\x89", lengthBytes);
  const std::string form = Element("\xB5", BigEndian(std::bit_cast<uint32_t>(44100.0F), 4)) +
                           Element("\x9F", BigEndian(2, 1)) + Element("bd", BigEndian(16, 1));
  const auto track = [](uint64_t number, uint64_t kind, std::string_view coding) {
    return Element("\xD7", BigEndian(number, 1)) + Element("\x73\xC5", BigEndian(number, 1)) +
           Element("\x83", BigEndian(kind, 1)) + Element("\x86", coding);
  };
  const std::string tracks = Element("\xAE", track(1, 2, codec) + Element("\xE1", form)) +
                             Element("\xAE", track(2, 17, "S_TEXT/UTF8"));
  std::string clusters;
  for (const MatroskaPacket& packet : packets) {
    const std::string block = BigEndian(0x80 | packet.track, 1) + BigEndian(0, 2) + "\x80";
    clusters += Element("\x1F\x43\xB6\x75", Element("\xE7", BigEndian(packet.milliseconds, 4)) +
                                                Element("\xA3", block + packet.content));
  }
  return Element("\x1A\x45\xDF\xA3", Element("\x42\x82", "matroska")) +
         Element("\x18\x53\x80\x67", Element("\x15\x49\xA9\x66", info) +
                                         Element("\x16\x54\xAE\x6B", tracks) + clusters);
}
