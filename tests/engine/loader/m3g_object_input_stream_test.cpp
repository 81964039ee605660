#include "engine/loader/m3g_object_input_stream.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <cmath>
#include <limits>
#include <new>
#include <stdexcept>

#include "tests/support/m3g_writer.h"
#include "tests/support/temporary_folder.h"

namespace varnel_m3g {
namespace {

using testing::ElementsAre;
using varnel_test::M3gFile;
using varnel_test::M3gRecord;
using varnel_test::TemporaryFolder;

std::string bytes(std::initializer_list<int> values) {
  std::string text;
  for (const int value : values) {
    text += static_cast<char>(value);
  }
  return text;
}

/// Opens files of given bytes.
class StreamTest : public testing::Test {
 protected:
  void open(const std::string& content) {
    stream.open(folder.write("stream.bin", content), std::ios::in | std::ios::binary);
    ASSERT_TRUE(stream);
  }

  void openInflating(const std::string& content, const std::string& rest = "") {
    open(rest);
    const std::string zlib = varnel_test::zlibStream(content);
    ASSERT_EQ(stream.uncompress(reinterpret_cast<const unsigned char*>(zlib.data()),
                                static_cast<std::uint32_t>(zlib.size()),
                                static_cast<std::uint32_t>(content.size())),
              static_cast<std::int64_t>(content.size()));
    ASSERT_TRUE(stream.isInflating());
  }

  std::string headerFailure(const M3gFile& file) {
    M3gObjectInputStream fileStream;
    fileStream.open(folder.write("header.m3g", file.bytes()), std::ios::in | std::ios::binary);
    try {
      fileStream.processHeader();
    } catch (const std::runtime_error& error) {
      return error.what();
    }
    return "";
  }

  TemporaryFolder folder;
  M3gObjectInputStream stream;
};

TEST_F(StreamTest, ReadsBytesAndBooleans) {
  open(bytes({0xFF, 0x00, 0x01, 0x80}));
  EXPECT_EQ(stream.readByte(), 255);
  EXPECT_FALSE(stream.readBoolean());
  EXPECT_TRUE(stream.readBoolean());
  EXPECT_TRUE(stream.readBoolean());
}

TEST_F(StreamTest, ReadsLittleEndianNumbers) {
  open(bytes({0x34, 0x12, 0xFE, 0xFF, 0x78, 0x56, 0x34, 0x12, 0xFF, 0xFF, 0xFF, 0xFF, 0x00, 0x00,
              0x20, 0xC1}));
  EXPECT_EQ(stream.readInt16(), 0x1234);
  EXPECT_EQ(stream.readInt16(), -2);
  EXPECT_EQ(stream.readInt32(), 0x12345678);
  EXPECT_EQ(stream.readIndex(), 0xFFFFFFFFu);
  EXPECT_EQ(stream.readFloat(), -10.0f);
}

TEST_F(StreamTest, PacksColoursWithRedFirst) {
  open(bytes({0xFF, 0x00, 0x80, 0xFF, 0x00, 0x80, 0x40}));
  EXPECT_EQ(stream.readRGB(), 0x00FF0080u);
  EXPECT_EQ(stream.readRGBA(), 0x40FF0080u);
}

TEST_F(StreamTest, NormalisesBytesUnsignedAndShortsSigned) {
  open(bytes({0xFF, 0x00, 0x33, 0xFF, 0xFF, 0xFF, 0x7F, 0x00, 0x80}));
  EXPECT_EQ(stream.readNormalisedByte(), 1.0f);
  EXPECT_EQ(stream.readNormalisedByte(), 0.0f);
  EXPECT_EQ(stream.readNormalisedByte(), static_cast<float>(51 / 255.0));
  EXPECT_EQ(stream.readNormalisedShort(), static_cast<float>(-1 / 65535.0));
  EXPECT_EQ(stream.readNormalisedShort(), static_cast<float>(32767 / 65535.0));
  EXPECT_EQ(stream.readNormalisedShort(), static_cast<float>(-32768 / 65535.0));
}

TEST_F(StreamTest, ReadsVectorsAndMatricesInFileOrder) {
  M3gRecord record(0);
  for (int i = 1; i <= 35; ++i) {
    record.float32(static_cast<float>(i));
  }
  open(record.data());
  EXPECT_THAT(stream.readVector3(), ElementsAre(1, 2, 3));
  float matrix[16] = {};
  stream.readMatrix().getMatrix(matrix);
  EXPECT_THAT(matrix, ElementsAre(4, 5, 6, 7, 8, 9, 10, 11, 12, 13, 14, 15, 16, 17, 18, 19));
  stream.readMatrixInto(matrix);
  EXPECT_EQ(matrix[0], 20.0f);
  EXPECT_EQ(matrix[15], 35.0f);
}

TEST_F(StreamTest, ReadsTextsUpToTheirZeroByte) {
  const std::string longText(100000, 'x');
  open(std::string("abc\0\0", 5) + longText + '\0' + "open end");
  EXPECT_EQ(stream.readString(), "abc");
  EXPECT_EQ(stream.readString(), "");
  EXPECT_EQ(stream.readString(), longText);
  EXPECT_EQ(stream.readString(), "open end");
  EXPECT_TRUE(stream.eof());
}

TEST_F(StreamTest, ReadsArraysOfEachKind) {
  M3gRecord record(0);
  record.byteArray(bytes({1, 255})).shortArray({1, -2, 40000}).intArray({-1, 0x12345678});
  record.int32(2).float32(0.5f).float32(-3.0f);
  open(record.data());
  unsigned count = 99;
  const auto byteArray = stream.readByteArray(count);
  ASSERT_EQ(count, 2u);
  EXPECT_EQ(byteArray[1], 255);
  const auto shorts = stream.readShortArray(count);
  ASSERT_EQ(count, 3u);
  EXPECT_EQ(shorts[1], -2);
  EXPECT_EQ(shorts[2], static_cast<short>(40000));
  const auto ints = stream.readIntArray(count);
  ASSERT_EQ(count, 2u);
  EXPECT_EQ(ints[1], 0x12345678);
  const auto floats = stream.readFloatArray(count);
  ASSERT_EQ(count, 2u);
  EXPECT_EQ(floats[1], -3.0f);
  EXPECT_TRUE(stream.good());
}

TEST_F(StreamTest, EmptyArraysAreNull) {
  open(std::string(16, '\0'));
  unsigned count = 99;
  EXPECT_EQ(stream.readByteArray(count), nullptr);
  EXPECT_EQ(count, 0u);
  EXPECT_EQ(stream.readShortArray(count), nullptr);
  EXPECT_EQ(stream.readIntArray(count), nullptr);
  EXPECT_EQ(stream.readFloatArray(count), nullptr);
  EXPECT_EQ(count, 0u);
}

TEST_F(StreamTest, ShortReadsYieldZeros) {
  open(bytes({0x12}));
  EXPECT_EQ(stream.readInt32(), 0x12);
  EXPECT_TRUE(stream.eof());
  EXPECT_EQ(stream.readByte(), 0);
  EXPECT_FALSE(stream.readBoolean());
  EXPECT_EQ(stream.readInt16(), 0);
  EXPECT_EQ(stream.readFloat(), 0.0f);
  EXPECT_EQ(stream.readRGBA(), 0u);
  EXPECT_EQ(stream.readString(), "");
  unsigned count = 99;
  EXPECT_EQ(stream.readIntArray(count), nullptr);
  EXPECT_EQ(count, 0u);
}

TEST_F(StreamTest, ReadReturnsTheBytesObtainedAndClearsTheRest) {
  open("abc");
  char destination[6] = {'?', '?', '?', '?', '?', '?'};
  EXPECT_EQ(stream.read(destination, 5), 3);
  EXPECT_EQ(std::string(destination, 6), std::string("abc\0\0?", 6));
  EXPECT_EQ(stream.read(destination, 0), 0);
  EXPECT_EQ(stream.read(destination, -1), 0);
}

TEST_F(StreamTest, ArrayCountsAreCutToWhatTheFileHolds) {
  open(M3gRecord(0).int32(0xFFFFFFFF).raw(bytes({1, 0, 2, 0, 3})).data());
  unsigned count = 0;
  const auto shorts = stream.readShortArray(count);
  ASSERT_EQ(count, 2u);
  EXPECT_EQ(shorts[0], 1);
  EXPECT_EQ(shorts[1], 2);
  EXPECT_TRUE(stream.eof());
}

TEST_F(StreamTest, ArrayCountsInAnInflatedSectionReachIntoTheFile) {
  openInflating(M3gRecord(0).int32(4).raw("ab").data(), "cdef");
  unsigned count = 0;
  const auto array = stream.readByteArray(count);
  ASSERT_EQ(count, 4u);
  EXPECT_EQ(std::string(array.get(), array.get() + 4), "abcd");
  EXPECT_FALSE(stream.isInflating());
  EXPECT_EQ(stream.readByte(), 'e');
}

TEST_F(StreamTest, ReadInt16sFillsUpWithZeros) {
  open(bytes({1, 0, 2, 0, 3}));
  short values[5] = {9, 9, 9, 9, 9};
  stream.readInt16s(values, 4);
  EXPECT_THAT(values, ElementsAre(1, 2, 3, 0, 9));
}

TEST_F(StreamTest, RequireRestRefusesCountsThatTheFileCannotHold) {
  open(std::string(12, 'x'));
  stream.requireRest(3, 4);
  stream.requireRest(0, 1000);
  EXPECT_THROW(stream.requireRest(4, 4), std::runtime_error);
  EXPECT_THROW(stream.requireRest(std::numeric_limits<std::uint64_t>::max(), 4),
               std::runtime_error);
}

TEST_F(StreamTest, ClaimsOfUnbackedMemoryAreLimited) {
  open(std::string(10, 'x'));
  stream.claimUnbacked(M3gObjectInputStream::unbackedMemoryBase - 1);
  stream.claimUnbacked(10 * M3gObjectInputStream::unbackedMemoryPerByte);
  stream.claimUnbacked(1);
  EXPECT_THROW(stream.claimUnbacked(1), std::bad_alloc);
  EXPECT_THROW(stream.claimUnbacked(std::numeric_limits<std::uint64_t>::max()), std::bad_alloc);
}

TEST_F(StreamTest, RemainingIsOneMoreThanTheBytesLeft) {
  open("abcd");
  EXPECT_EQ(stream.remaining(), 5);
  stream.readByte();
  EXPECT_EQ(stream.remaining(), 4);
  stream.readInt16();
  stream.readByte();
  EXPECT_EQ(stream.remaining(), 1);
  EXPECT_TRUE(stream.good());
}

TEST_F(StreamTest, ChecksumCoversWhatIsReadFromTheFile) {
  open("abcdefghij");
  EXPECT_EQ(stream.checksum(), 1u);
  stream.readInt32();
  stream.readByte();
  EXPECT_EQ(stream.checksum(), varnel_test::checksumOf("abcde"));
  stream.resetChecksum();
  EXPECT_EQ(stream.checksum(), 1u);
  stream.skip(3);
  EXPECT_EQ(stream.checksum(), varnel_test::checksumOf("fgh"));
}

TEST_F(StreamTest, ChecksumDoesNotCoverInflatedBytes) {
  openInflating("abcdef", "xy");
  stream.readInt32();
  EXPECT_EQ(stream.checksum(), 1u);
  stream.skip(3);
  EXPECT_EQ(stream.checksum(), varnel_test::checksumOf("x"));
}

TEST_F(StreamTest, SkipStopsAtTheEndOfTheFile) {
  open("abcdef");
  stream.skip(0xFFFFFFFF);
  EXPECT_TRUE(stream.eof());
}

TEST_F(StreamTest, ReadingLeavesTheInflatedSectionWithItsLastByte) {
  openInflating("abc", "def");
  EXPECT_EQ(stream.readByte(), 'a');
  EXPECT_TRUE(stream.isInflating());
  EXPECT_EQ(stream.readInt16(), 'b' | 'c' << 8);
  EXPECT_FALSE(stream.isInflating());
  EXPECT_EQ(stream.readByte(), 'd');
}

TEST_F(StreamTest, AReadPastTheInflatedEndIsClampedAndClearsTheRest) {
  openInflating("abc", "def");
  stream.readByte();
  char destination[5] = {'?', '?', '?', '?', '?'};
  EXPECT_EQ(stream.read(destination, 4), 2);
  EXPECT_EQ(std::string(destination, 5), std::string("bc\0\0?", 5));
  EXPECT_FALSE(stream.isInflating());
  EXPECT_EQ(stream.readByte(), 'd');
}

TEST_F(StreamTest, InflatesNoMoreThanTheGivenLength) {
  open("");
  const std::string zlib = varnel_test::zlibStream(std::string(100000, 'z'));
  EXPECT_EQ(stream.uncompress(reinterpret_cast<const unsigned char*>(zlib.data()),
                              static_cast<std::uint32_t>(zlib.size()), 70000),
            70000);
  EXPECT_EQ(stream.bytesLeft(), 70000u);
}

TEST_F(StreamTest, AClaimOfFourGigabytesCostsWhatTheDataYields) {
  open("");
  const std::string content(100000, 'z');
  const std::string zlib = varnel_test::zlibStream(content);
  EXPECT_EQ(stream.uncompress(reinterpret_cast<const unsigned char*>(zlib.data()),
                              static_cast<std::uint32_t>(zlib.size()), 0xFFFFFFFF),
            100000);
  std::string read(100000, '\0');
  EXPECT_EQ(stream.read(read.data(), 100000), 100000);
  EXPECT_EQ(read, content);
}

TEST_F(StreamTest, ATruncatedZlibStreamYieldsItsBeginning) {
  open("");
  std::string content;
  for (int i = 0; i < 20000; ++i) {
    content += static_cast<char>(i * i >> 3);
  }
  const std::string zlib = varnel_test::zlibStream(content);
  const std::int64_t produced =
      stream.uncompress(reinterpret_cast<const unsigned char*>(zlib.data()),
                        static_cast<std::uint32_t>(zlib.size() / 2), 20000);
  ASSERT_GT(produced, 0);
  ASSERT_LT(produced, 20000);
  std::string read(static_cast<std::size_t>(produced), '\0');
  stream.read(read.data(), produced);
  EXPECT_EQ(read, content.substr(0, read.size()));
  EXPECT_FALSE(stream.isInflating());
}

TEST_F(StreamTest, CorruptAndDictionaryStreamsAreDataErrors) {
  open("");
  std::string zlib = varnel_test::zlibStream("some text that is compressed");
  zlib[0] = 0;
  EXPECT_EQ(stream.uncompress(reinterpret_cast<const unsigned char*>(zlib.data()),
                              static_cast<std::uint32_t>(zlib.size()), 100),
            Z_DATA_ERROR);
  EXPECT_FALSE(stream.isInflating());
  // A stream that names a preset dictionary.
  const std::string dictionary = bytes({0x78, 0xBB, 0x01, 0x02, 0x03, 0x04, 0x05, 0x06});
  EXPECT_EQ(stream.uncompress(reinterpret_cast<const unsigned char*>(dictionary.data()),
                              static_cast<std::uint32_t>(dictionary.size()), 100),
            Z_DATA_ERROR);
  EXPECT_FALSE(stream.isInflating());
}

TEST_F(StreamTest, AnEmptyZlibStreamYieldsNothing) {
  open("");
  EXPECT_EQ(stream.uncompress(nullptr, 0, 100), 0);
  EXPECT_FALSE(stream.isInflating());
  const std::string zlib = varnel_test::zlibStream("text");
  EXPECT_EQ(stream.uncompress(reinterpret_cast<const unsigned char*>(zlib.data()),
                              static_cast<std::uint32_t>(zlib.size()), 0),
            0);
  EXPECT_FALSE(stream.isInflating());
}

TEST_F(StreamTest, ReadStoredTakesWhatThereIs) {
  open("abcdef");
  std::unique_ptr<unsigned char[]> data;
  EXPECT_EQ(stream.readStored(data, -5), 0u);
  EXPECT_EQ(stream.readStored(data, 4), 4u);
  EXPECT_EQ(std::string(data.get(), data.get() + 4), "abcd");
  EXPECT_TRUE(stream.good());
  EXPECT_EQ(stream.readStored(data, 0xFFFFFFF2), 2u);
  EXPECT_EQ(std::string(data.get(), data.get() + 2), "ef");
  EXPECT_TRUE(stream.eof());
}

TEST_F(StreamTest, HeaderIsAcceptedAndDumped) {
  M3gFile file;
  file.versionMinor = 7;
  file.hasExternalReferences = true;
  file.totalFileSize = 4000000000u;
  file.approximateContentSize = 17;
  file.authoringField = "An author";
  open(file.bytes());
  stream.processHeader();
  EXPECT_EQ(stream.remaining(), 1);
  testing::internal::CaptureStdout();
  stream.dumpHeader();
  EXPECT_EQ(testing::internal::GetCapturedStdout(),
            "M3G File Version 1.7\n"
            "HasEnternalReferences: 1\n"
            "TotalFileSize: 4000000000\n"
            "ApproximateContentSize: 17\n"
            "AuthoringField: An author\n");
}

TEST_F(StreamTest, EveryByteOfTheIdentifierCounts) {
  const std::string good = M3gFile().bytes();
  for (std::size_t i = 0; i < 12; ++i) {
    std::string bad = good;
    bad[i] = static_cast<char>(bad[i] ^ 1);
    M3gObjectInputStream fileStream;
    fileStream.open(folder.write("bad.m3g", bad), std::ios::in | std::ios::binary);
    try {
      fileStream.processHeader();
      ADD_FAILURE() << "byte " << i;
    } catch (const std::runtime_error& error) {
      EXPECT_STREQ(error.what(), "M3gObjectInputStream::processHeader: M3G identifier incorrect");
    }
  }
}

TEST_F(StreamTest, TheIdentifierIsNotSummed) {
  M3gFile file;
  open(file.bytes());
  stream.processHeader();
  EXPECT_EQ(stream.checksum(), varnel_test::checksumOf(file.bytes().substr(12)));
}

TEST_F(StreamTest, HeaderFailuresHaveTheirTexts) {
  M3gFile scheme;
  scheme.headerScheme = 1;
  EXPECT_EQ(headerFailure(scheme),
            "M3gObjectInputStream::processHeader: Header compression scheme incorrect");
  M3gFile type;
  type.headerType = 1;
  EXPECT_EQ(headerFailure(type), "M3gObjectInputStream: Invalid object type for file header");
}

TEST_F(StreamTest, AVersionIsRefusedForItsMajorAndMinorNumberTogether) {
  const struct {
    int major;
    int minor;
    bool accepted;
  } versions[] = {{1, 0, true},  {1, 1, true},    {1, 7, true},  {2, 0, true},
                  {2, 1, false}, {0, 255, false}, {255, 0, true}};
  for (const auto& version : versions) {
    M3gFile file;
    file.versionMajor = version.major;
    file.versionMinor = version.minor;
    EXPECT_EQ(headerFailure(file),
              version.accepted ? "" : "M3gObjectInputStream: M3G version not correct")
        << version.major << "." << version.minor;
  }
}

TEST_F(StreamTest, TheHeaderChecksumIsNotVerified) {
  M3gFile file;
  file.headerChecksum = 0xDEADBEEF;
  EXPECT_EQ(headerFailure(file), "");
}

}  // namespace
}  // namespace varnel_m3g
