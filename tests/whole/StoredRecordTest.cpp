// Catches records that lose what a project stored, and stored bytes that do harm.
#include <algorithm>

#include "Instance.h"

namespace {

constexpr size_t kHeaderSize = 48;

// A header that no new record has; bytes 4 to 7 stand for nothing.
std::vector<uint8_t> StoredBytes(size_t size) {
  std::vector<uint8_t> bytes(size);
  for (size_t i = 0; i < size; ++i) bytes[i] = static_cast<uint8_t>(i * 7 + 1);
  return bytes;
}

std::vector<uint8_t> NewRecord() {
  Instance instance(0.1);
  instance.SetUpSequence();
  return instance.Record();
}

bool SameBytes(const std::vector<uint8_t>& a, const std::vector<uint8_t>& b, size_t first,
               size_t end) {
  return std::equal(a.begin() + static_cast<ptrdiff_t>(first),
                    a.begin() + static_cast<ptrdiff_t>(end),
                    b.begin() + static_cast<ptrdiff_t>(first));
}

TEST(StoredRecord, IsNewWithTheDefaultMap) {
  Instance instance(0.1);
  instance.SetUpSequence();
  const std::vector<uint8_t> record = instance.Record();
  ASSERT_EQ(record.size(), kRecordSize);
  EXPECT_EQ(instance.RecordWord(0), 0xFFFFFFFFU) << "no frame rendered";
  EXPECT_EQ(instance.RecordWord(4), 0xCDCDCDCDU) << "the alignment bytes are not written";
  EXPECT_TRUE(
      std::all_of(record.begin() + 8, record.begin() + 40, [](uint8_t b) { return b == 0; }));
  EXPECT_EQ(instance.RecordWord(40), 2U);
  EXPECT_EQ(instance.RecordWord(44), 0U);
  const std::vector<uint8_t> stops(record.begin() + 2460, record.begin() + 2466);
  EXPECT_EQ(stops, (std::vector<uint8_t>{0, 50, 100, 150, 200, 255}));
  float firstRed = 0.0F;
  std::memcpy(&firstRed, record.data() + kHeaderSize, sizeof firstRed);
  EXPECT_EQ(firstRed, 1.0F) << "the ramp begins red";
}

TEST(StoredRecord, OfTheRightSizeIsUsedAsItStandsWhateverItHolds) {
  std::vector<uint8_t> badStops = NewRecord();
  for (size_t i = 0; i < 50; ++i) badStops[2460 + i] = static_cast<uint8_t>(254 - i);
  const std::vector<uint8_t> kRecords[] = {
      StoredBytes(kRecordSize), std::vector<uint8_t>(kRecordSize, 0xFF),
      std::vector<uint8_t>(kRecordSize, 0x7F), badStops, NewRecord()};
  for (const std::vector<uint8_t>& stored : kRecords) {
    Instance instance(0.3);
    instance.effect->sequenceData = instance.host.Handles().NewFrom(stored);
    const PF_Handle handle = instance.effect->sequenceData;
    ExpectClean(instance.Send(PF_Cmd_SEQUENCE_RESETUP));
    EXPECT_EQ(instance.effect->sequenceData, handle);
    EXPECT_EQ(instance.Record(), stored);
    ExpectClean(instance.Send(PF_Cmd_UPDATE_PARAMS_UI));
    ExpectClean(instance.PressAndRelease());
    EXPECT_TRUE(SameBytes(instance.Record(), stored, kHeaderSize, kRecordSize));
    EXPECT_FALSE(instance.Output(1).empty()) << "the instance works";
  }
}

TEST(StoredRecord, OfAnyOtherSizeKeepsTheHeaderThatIsThereAndGetsTheDefaultMap) {
  const std::vector<uint8_t> fresh = NewRecord();
  for (const size_t size :
       {0U, 1U, 3U, 4U, 8U, 15U, 16U, 35U, 36U, 47U, 48U, 3111U, 3113U, 10000U}) {
    Instance instance(0.1);
    const std::vector<uint8_t> stored = StoredBytes(size);
    instance.effect->sequenceData = instance.host.Handles().NewFrom(stored);
    const CommandResult result = instance.Send(PF_Cmd_SEQUENCE_RESETUP);
    EXPECT_EQ(result.error, PF_Err_NONE) << size;
    EXPECT_TRUE(result.ShowsMessage()) << size;
    EXPECT_EQ(result.message,
              "Quorvane Delvior: Project or Favorite contains sequence data with wrong size.");
    EXPECT_TRUE(result.broken.empty()) << size;
    const std::vector<uint8_t> record = instance.Record();
    ASSERT_EQ(record.size(), kRecordSize) << size;
    EXPECT_TRUE(SameBytes(record, fresh, kHeaderSize, kRecordSize)) << size;
    // Field by field: what is stored whole is taken over, the rest is as new.
    constexpr size_t kFieldEnds[] = {4, 8, 16, 24, 32, 36, 40, 44, 48};
    size_t first = 0;
    for (const size_t end : kFieldEnds) {
      const bool taken = first != 4 && end <= size;
      EXPECT_TRUE(SameBytes(record, taken ? stored : fresh, first, end)) << size << " at " << first;
      first = end;
    }
  }
}

TEST(StoredRecord, NullIsANewInstance) {
  Instance instance(0.1);
  ExpectClean(instance.Send(PF_Cmd_SEQUENCE_RESETUP));
  EXPECT_EQ(instance.Record(), NewRecord());
}

TEST(StoredRecord, FlattenResetsTheHeaderAndACopyDoesNot) {
  std::vector<uint8_t> stored = StoredBytes(kRecordSize);
  Instance instance(0.1);
  instance.effect->sequenceData = instance.host.Handles().NewFrom(stored);
  const CommandResult copy = instance.Send(PF_Cmd_GET_FLATTENED_SEQUENCE_DATA);
  ExpectClean(copy);
  EXPECT_EQ(copy.flatRecord, stored);
  EXPECT_EQ(instance.Record(), stored) << "the running record is not touched";

  ExpectClean(instance.Send(PF_Cmd_SEQUENCE_FLATTEN));
  const std::vector<uint8_t> fresh = NewRecord();
  std::copy_n(fresh.begin(), kHeaderSize, stored.begin());
  std::copy_n(StoredBytes(kHeaderSize).begin() + 4, 4, stored.begin() + 4);
  EXPECT_EQ(instance.Record(), stored);
}

TEST(StoredRecord, TooSmallARecordIsRefusedWhereItIsNeeded) {
  Instance instance(0.1);
  instance.effect->sequenceData = instance.host.Handles().New(3111);
  for (const PF_Cmd cmd : {PF_Cmd_SEQUENCE_FLATTEN, PF_Cmd_GET_FLATTENED_SEQUENCE_DATA}) {
    EXPECT_EQ(instance.Send(cmd).error, PF_Err_INTERNAL_STRUCT_DAMAGED) << cmd;
  }
  const CommandResult press = instance.Point(PF_Event_DO_CLICK, {175, 8});
  EXPECT_TRUE(press.ShowsMessage());
  EXPECT_EQ(press.error, PF_Err_NONE) << "told once: the host has nothing to add";
  EXPECT_EQ(instance.lastEvent.u.do_click.send_drag, 0);
}

}  // namespace
