#include "engine/loader/loader.h"

#include <gtest/gtest.h>

#include <boost/weak_ptr.hpp>
#include <fstream>
#include <set>
#include <stdexcept>
#include <string>
#include <vector>

#include "engine/loader/file_name.h"
#include "engine/object/user_object.h"
#include "engine/scene/camera.h"
#include "engine/scene/group.h"
#include "engine/scene/light.h"
#include "engine/scene/world.h"
#include "engine/surface/fog.h"
#include "engine/surface/image2d.h"
#include "engine/surface/image_texture.h"
#include "tests/support/image_writer.h"
#include "tests/support/loading.h"
#include "tests/support/small_stack.h"
#include "tests/support/temporary_folder.h"

namespace varnel_m3g {
namespace {

using namespace varnel_test;

const char checksumLine[] = "Error in parsing M3G file.\n";

std::string smallPng() {
  PngImage image;
  image.width = 2;
  image.height = 1;
  image.rows = "abcdef";
  return pngFile(image);
}

std::string smallJpeg() {
  JpegImage image;
  image.width = 8;
  image.height = 8;
  image.pixels = std::string(8 * 8 * 3, '\x40');
  return jpegFile(image);
}

TEST(Loader, AFileOfTheHeaderAloneHasNoObjects) {
  const Loaded loaded = loadBytes(M3gFile().bytes());
  EXPECT_EQ(loaded.failure, "");
  ASSERT_EQ(loaded.objects.size(), 1u);
  EXPECT_FALSE(loaded.objects[0]);
}

TEST(Loader, EveryLoadWritesTheHeader) {
  M3gFile file;
  file.authoringField = "me";
  file.totalFileSize = 12;
  const Loaded loaded = loadBytes(file.bytes());
  EXPECT_EQ(loaded.out,
            "M3G File Version 1.0\nHasEnternalReferences: 0\nTotalFileSize: 12\n"
            "ApproximateContentSize: 0\nAuthoringField: me\n");
}

TEST(Loader, ObjectsStandInFileOrderAfterOneEmptyEntry) {
  const Loaded loaded = loadRecords({anyFog(), anyImage()});
  EXPECT_EQ(loaded.failure, "");
  ASSERT_EQ(loaded.objects.size(), 3u);
  EXPECT_FALSE(loaded.objects[0]);
  EXPECT_TRUE(loaded.at<Fog>(2));
  EXPECT_TRUE(loaded.at<Image2D>(3));
}

TEST(Loader, SectionsOfBothSchemesFollowEachOther) {
  M3gFile file;
  file.stored({anyFog()}).compressed({anyImage(), anyFog()}).stored({anyImage()});
  file.compressed({anyFog()});
  const Loaded loaded = loadBytes(file.bytes());
  EXPECT_EQ(loaded.failure, "");
  ASSERT_EQ(loaded.objects.size(), 6u);
  EXPECT_TRUE(loaded.at<Fog>(2));
  EXPECT_TRUE(loaded.at<Image2D>(3));
  EXPECT_TRUE(loaded.at<Fog>(4));
  EXPECT_TRUE(loaded.at<Image2D>(5));
  EXPECT_TRUE(loaded.at<Fog>(6));
  EXPECT_EQ(loaded.out.find(checksumLine), std::string::npos);
}

TEST(Loader, TheHeaderChecksumIsNotVerified) {
  M3gFile file;
  file.headerChecksum = 1;
  const Loaded loaded = loadBytes(file.stored({anyFog()}).bytes());
  EXPECT_EQ(loaded.failure, "");
  EXPECT_EQ(loaded.objects.size(), 2u);
}

TEST(Loader, AWrongSectionChecksumIsReportedAndObjectsStay) {
  M3gSection section;
  section.objects = anyFog().object();
  M3gSection wrong = section;
  wrong.checksum = 4000000000u;
  const std::string stored = section.bytes();
  const std::uint32_t computed = checksumOf(stored.substr(0, stored.size() - 4));
  const Loaded loaded = loadBytes(M3gFile().section(wrong).stored({anyImage()}).bytes());
  EXPECT_EQ(loaded.failure, "");
  EXPECT_EQ(loaded.objects.size(), 3u);
  EXPECT_NE(loaded.out.find("Error in parsing M3G file.\nFileChecksum   = 4000000000\n"
                            "Computed value = " +
                            std::to_string(computed) + "\n"),
            std::string::npos)
      << loaded.out;
}

TEST(Loader, ACompressedSectionHasTheChecksumOfItsStoredBytes) {
  M3gSection section;
  section.scheme = 1;
  section.objects = anyFog().object();
  section.checksum = 5;
  const Loaded loaded = loadBytes(M3gFile().section(section).bytes());
  EXPECT_NE(loaded.out.find("FileChecksum   = 5\n"), std::string::npos);
  EXPECT_EQ(loaded.objects.size(), 2u);
}

TEST(Loader, ACorruptCompressedSectionLosesItsObjectsAlone) {
  M3gSection section;
  section.scheme = 1;
  section.objects = anyFog().object();
  std::string corrupt = zlibStream(section.objects);
  corrupt[1] = '\0';
  section.storeAs(corrupt);
  const Loaded loaded = loadBytes(M3gFile().section(section).stored({anyImage()}).bytes());
  EXPECT_EQ(loaded.failure, "");
  ASSERT_EQ(loaded.objects.size(), 2u);
  EXPECT_TRUE(loaded.at<Image2D>(2));
  EXPECT_EQ(loaded.out.find(checksumLine), std::string::npos);
}

TEST(Loader, AClaimOfTooMuchInflatedDataIsHarmless) {
  M3gSection section;
  section.scheme = 1;
  section.objects = objectsOf({anyFog(), anyFog()});
  section.uncompressedLength = 0xFFFFFFFF;
  const Loaded loaded = loadBytes(M3gFile().section(section).stored({anyImage()}).bytes());
  EXPECT_EQ(loaded.failure, "");
  EXPECT_EQ(loaded.objects.size(), 4u);
}

TEST(Loader, InflationStopsAtTheClaimedLength) {
  M3gSection section;
  section.scheme = 1;
  section.objects = objectsOf({anyFog(), anyFog()});
  section.uncompressedLength = static_cast<std::uint32_t>(anyFog().object().size());
  const Loaded loaded = loadBytes(M3gFile().section(section).bytes());
  EXPECT_EQ(loaded.failure, "");
  EXPECT_EQ(loaded.objects.size(), 2u);
}

TEST(Loader, AnEmptyCompressedSectionIsPassedOver) {
  M3gSection section;
  section.scheme = 1;
  const Loaded loaded = loadBytes(M3gFile().section(section).stored({anyFog()}).bytes());
  EXPECT_EQ(loaded.failure, "");
  EXPECT_EQ(loaded.objects.size(), 2u);
}

TEST(Loader, AfterAnUnknownSchemeTheNextSectionBeginsAtTheByteBehindTheLengths) {
  // What would be the objects is a section itself.
  M3gSection inner;
  inner.objects = anyFog().object();
  M3gSection unknown;
  unknown.scheme = 2;
  unknown.objects = "";
  std::string head = unknown.bytes();
  head.resize(9);
  const Loaded loaded = loadBytes(M3gFile().bytes() + head + inner.bytes());
  EXPECT_EQ(loaded.failure, "");
  ASSERT_EQ(loaded.objects.size(), 2u);
  EXPECT_TRUE(loaded.at<Fog>(2));
}

TEST(Loader, AnyNumberOfUnknownSchemesEnds) {
  const Loaded loaded = loadBytes(M3gFile().bytes() + std::string(100000, '\7'));
  EXPECT_EQ(loaded.failure, "");
  EXPECT_EQ(loaded.objects.size(), 1u);
}

TEST(Loader, ATotalLengthBelowTheOverheadHasNoObjects) {
  for (const std::uint32_t length : {0u, 12u, 13u}) {
    M3gSection section;
    section.totalLength = length;
    section.storeAs("");
    const Loaded loaded = loadBytes(M3gFile().section(section).stored({anyFog()}).bytes());
    EXPECT_EQ(loaded.failure, "") << length;
    EXPECT_EQ(loaded.objects.size(), 2u) << length;
  }
}

TEST(Loader, ASectionThatClaimsMoreThanTheFileEndsWithTheFile) {
  for (const std::uint32_t length : {1000u, 0x7FFFFFFFu, 0xFFFFFFFFu}) {
    M3gSection section;
    section.objects = anyFog().object();
    section.totalLength = length;
    std::string bytes = M3gFile().section(section).bytes();
    bytes.resize(bytes.size() - 4);
    const Loaded loaded = loadBytes(bytes);
    EXPECT_EQ(loaded.failure, "") << length;
    ASSERT_EQ(loaded.objects.size(), 2u) << length;
    EXPECT_TRUE(loaded.at<Fog>(2)) << length;
    EXPECT_NE(loaded.out.find(std::string(checksumLine) + "FileChecksum   = 0\n"),
              std::string::npos)
        << length;
  }
}

TEST(Loader, AByteBehindTheObjectsOfASectionBeginsAnother) {
  // It takes the checksum as its length, so that the checksum is what follows.
  M3gSection section;
  section.objects = anyFog().object() + '\0';
  M3gSection next;
  next.objects = anyImage().object();
  const Loaded loaded =
      loadBytes(M3gFile().bytes() + section.bytes() + std::string(4, '\0') + next.bytes());
  EXPECT_EQ(loaded.failure, "");
  ASSERT_EQ(loaded.objects.size(), 3u);
  EXPECT_TRUE(loaded.at<Fog>(2));
  EXPECT_TRUE(loaded.at<Image2D>(3));
  EXPECT_NE(loaded.out.find(std::string(checksumLine) + "FileChecksum   = 0\n"), std::string::npos);
}

TEST(Loader, AnObjectOfTypeZeroIsOnlyItsHead) {
  // Its five bytes are passed over, its data is the next object.
  M3gRecord empty(0);
  empty.raw(anyFog().object());
  const Loaded loaded = loadRecords({empty, anyImage()});
  EXPECT_EQ(loaded.failure, "");
  ASSERT_EQ(loaded.objects.size(), 3u);
  EXPECT_TRUE(loaded.at<Fog>(2));
  EXPECT_TRUE(loaded.at<Image2D>(3));
}

TEST(Loader, ObjectsOfUnknownTypesAreSkippedAndReported) {
  for (const int type : {18, 23, 100, 254}) {
    M3gRecord unknown(type);
    unknown.raw("some data");
    const Loaded loaded = loadRecords({unknown, anyFog()});
    EXPECT_EQ(loaded.failure, "") << type;
    ASSERT_EQ(loaded.objects.size(), 2u) << type;
    EXPECT_TRUE(loaded.at<Fog>(2)) << type;
    EXPECT_EQ(loaded.err, "Error, Unknown object type (" + std::to_string(type) + ")\n");
  }
}

TEST(Loader, TheLengthOfAnUnknownObjectEndsWithTheFile) {
  M3gSection section;
  section.objects = M3gRecord(99).raw("abc").object(0xFFFFFFFF);
  const Loaded loaded = loadBytes(M3gFile().section(section).bytes());
  EXPECT_EQ(loaded.failure, "");
  EXPECT_EQ(loaded.objects.size(), 1u);
}

TEST(Loader, AFailureReleasesTheObjectsReadSoFar) {
  const TemporaryFolder folder;
  const auto external = [&folder] {
    return M3gRecord(EXTERNAL_REFERENCE).text(folder.write("small.png", smallPng()));
  };
  const M3gRecord badTexture = anyTexture(1000);
  M3gRecord badDensity(FOG);
  badDensity.object3D().rgb(0).byte(80).float32(-1.0f);
  M3gRecord badLayer(APPEARANCE);
  badLayer.object3D().byte(200);
  M3gRecord tooLarge(IMAGE_2D);
  tooLarge.object3D().byte(100).boolean(true).int32(0x7FFFFFFF).int32(0x7FFFFFFF);
  for (const M3gRecord& last : {badTexture, badDensity, badLayer, tooLarge}) {
    Loaded loaded =
        loadRecords({anyImage(), anyTexture(2), external(), anyTexture(4), anyFog(), last});
    ASSERT_NE(loaded.failure, "");
    std::vector<boost::weak_ptr<Object3D>> watches(loaded.objects.begin(), loaded.objects.end());
    ASSERT_EQ(watches.size(), 7u);
    loaded.objects.clear();
    for (const auto& watch : watches) {
      EXPECT_TRUE(watch.expired());
    }
  }
}

TEST(Loader, ObjectsOfBeforeAreNotTheFailuresConcern) {
  Loaded loaded = loadRecords({anyImage()});
  boost::weak_ptr<Object3D> watch;
  {
    ObjectTable table = {loaded.at<Image2D>(2)};
    watch = table[0];
    EXPECT_THROW(Loader::load("no such file", table), std::runtime_error);
    loaded.objects.clear();
  }
  ASSERT_FALSE(watch.expired());
  boost::dynamic_pointer_cast<Image2D>(watch.lock())->getTexture()->releaseImage();
  EXPECT_TRUE(watch.expired());
}

TEST(Loader, ASpriteMovesAllLaterIndicesByOne) {
  M3gRecord sprite(SPRITE_3D);
  sprite.plainNode().int32(2).int32(0).boolean(true);
  // The group names the second image by its place in the file, which the camera has taken.
  M3gRecord texture = anyTexture(4);
  const Loaded loaded = loadRecords({anyImage(), sprite, anyImage(), anyCamera(), texture});
  EXPECT_EQ(loaded.failure,
            "std::runtime_error: Texture2D: file loader...  invalid Image2D reference");
  EXPECT_EQ(loaded.err, "Error, Unknown object type (18)\n");
}

TEST(Loader, TheLengthOfAKnownObjectIsNotRead) {
  M3gSection section;
  section.objects = anyFog().object(0xFFFFFFFF) + anyImage().object(0);
  const Loaded loaded = loadBytes(M3gFile().section(section).bytes());
  EXPECT_EQ(loaded.failure, "");
  EXPECT_EQ(loaded.objects.size(), 3u);
}

TEST(Loader, ARecordMayRunOutOfAnInflatedSectionIntoTheFile) {
  // The section holds the head and the first bytes of a fog; the rest is what follows in the file.
  const std::string fog = anyFog().object();
  M3gSection section;
  section.scheme = 1;
  section.objects = fog.substr(0, 13);
  std::string bytes = section.bytes();
  bytes.resize(bytes.size() - 4);
  const Loaded loaded = loadBytes(M3gFile().bytes() + bytes + fog.substr(13));
  EXPECT_EQ(loaded.failure, "");
  ASSERT_EQ(loaded.objects.size(), 2u);
  EXPECT_EQ(loaded.at<Fog>(2)->getDensity(), 0.5f);
}

TEST(Loader, AMissingFileIsATextOfItsKind) {
  EXPECT_EQ(loadFile("/nowhere/file").failure,
            "std::runtime_error: Loader::load:  Can't load file");
  EXPECT_EQ(loadFile("/nowhere/file.png").failure,
            "std::runtime_error: Loader::readPNG Couldn't read PNG file");
  EXPECT_EQ(loadFile("/nowhere/file.jpg").failure,
            "std::runtime_error: Loader:readJPEG Couldn't read external JPEG file");
  EXPECT_EQ(loadFile("/nowhere/file.jpeg").failure,
            "std::runtime_error: Loader:readJPEG Couldn't read external JPEG file");
}

// "Bücher 日本", written so that the source needs no encoding.
const std::string foreignName =
    "B\xC3\xBC"
    "cher \xE6\x97\xA5\xE6\x9C\xAC";

std::string fileOf(const TemporaryFolder& folder, const std::string& name,
                   const std::string& bytes) {
  const std::string path = folder.path(name);
  std::ofstream(systemFileName(path.c_str()), std::ios::binary) << bytes;
  return path;
}

TEST(Loader, FileNamesAreInUtf8) {
  const TemporaryFolder folder;
  EXPECT_EQ(loadFile(fileOf(folder, foreignName, M3gFile().bytes())).failure, "");
  EXPECT_EQ(loadFile(fileOf(folder, foreignName + ".png", smallPng())).failure, "");
  EXPECT_EQ(loadFile(fileOf(folder, foreignName + ".jpg", smallJpeg())).failure, "");
}

TEST(Loader, ANameThatIsNoUtf8IsNoFile) {
  EXPECT_EQ(loadFile("\xFF\xC3").failure, "std::runtime_error: Loader::load:  Can't load file");
  EXPECT_EQ(loadFile("\xFF\xC3.png").failure,
            "std::runtime_error: Loader::readPNG Couldn't read PNG file");
}

TEST(Loader, AFolderIsNoFile) {
  const TemporaryFolder folder;
  // Some systems open a folder and find nothing to read in it, others do not open it.
  const std::set<std::string> failures = {
      "std::runtime_error: M3gObjectInputStream::processHeader: M3G identifier incorrect",
      "std::runtime_error: Loader::load:  Can't load file"};
  EXPECT_EQ(failures.count(loadFile(folder.path("")).failure), 1u);
}

TEST(Loader, AnEmptyFileHasNoIdentifier) {
  EXPECT_EQ(loadBytes("").failure,
            "std::runtime_error: M3gObjectInputStream::processHeader: M3G identifier incorrect");
}

TEST(Loader, LoadingFromMemoryDoesNotExist) {
  ObjectTable objects;
  try {
    const signed char data[] = {1, 2, 3};
    Loader::load(data, 3, 0, objects);
    FAIL();
  } catch (const std::runtime_error& error) {
    EXPECT_STREQ(error.what(), "This version of Loader::load() not implemented");
  }
}

TEST(Loader, AnImageIsTheOnlyEntry) {
  const TemporaryFolder folder;
  const struct {
    const char* name;
    std::string bytes;
  } files[] = {{"a.png", smallPng()},        {"a.PNG", smallPng()},    {"a.png.m3g", smallPng()},
               {"a.Png.txt", smallPng()},    {"b.jpg", smallJpeg()},   {"b.JPG", smallJpeg()},
               {"b.jpeg", smallJpeg()},      {"b.JPEG", smallJpeg()},  {"b.jpeg.m3g", smallJpeg()},
               {"b.jpegs.bak", smallJpeg()}, {"c.jpg.png", smallPng()}};
  for (const auto& file : files) {
    const Loaded loaded = loadFile(folder.write(file.name, file.bytes));
    EXPECT_EQ(loaded.failure, "") << file.name;
    ASSERT_EQ(loaded.objects.size(), 1u) << file.name;
    EXPECT_TRUE(loaded.at<Image2D>(1)) << file.name;
    EXPECT_EQ(loaded.out, "") << file.name;
  }
}

TEST(Loader, TheKindOfImageThatANameHoldsFirstDecides) {
  const TemporaryFolder folder;
  EXPECT_EQ(loadFile(folder.write("a.jpg.png", smallJpeg())).failure,
            "std::runtime_error: Loader::readPNG: External reference is not PNG");
  EXPECT_EQ(loadFile(folder.write("a.jpg", smallPng())).failure,
            "std::runtime_error: Loader::readJPEG Couldn't setup JPEG decompression library");
}

TEST(Loader, ANameWithoutThePointIsAnM3gFile) {
  const TemporaryFolder folder;
  EXPECT_EQ(loadFile(folder.write("ajpeg", smallJpeg())).failure,
            "std::runtime_error: M3gObjectInputStream::processHeader: M3G identifier incorrect");
}

/// Loads references from a folder that is the current one.
class ExternalReference : public testing::Test {
 protected:
  Loaded reference(const std::string& name) {
    return loadRecords({M3gRecord(EXTERNAL_REFERENCE).text(name), anyFog()});
  }

  TemporaryFolder folder;
  CurrentFolder current{folder.path("")};
};

TEST_F(ExternalReference, ToAPngIsAnImageAmongTheObjects) {
  folder.write("Picture.PNG", smallPng());
  const Loaded loaded = reference("Picture.PNG");
  EXPECT_EQ(loaded.failure, "");
  ASSERT_EQ(loaded.objects.size(), 3u);
  EXPECT_TRUE(loaded.at<Image2D>(2));
  EXPECT_TRUE(loaded.at<Fog>(3));
  EXPECT_NE(loaded.out.find("External Reference: Picture.PNG\n\tReference is PNG\n"),
            std::string::npos);
}

TEST_F(ExternalReference, ToAJpegHasThreeEndings) {
  for (const std::string name : {"a.jpg", "a.JPEG", "ajpeg", "a.jpeg"}) {
    folder.write(name, smallJpeg());
    const Loaded loaded = reference(name);
    EXPECT_EQ(loaded.failure, "") << name;
    EXPECT_TRUE(loaded.at<Image2D>(2)) << name;
    EXPECT_NE(loaded.out.find("External Reference: " + name + "\n\tReference is JPEG\n"),
              std::string::npos);
  }
}

TEST_F(ExternalReference, ToAnM3gFileEndsTheLoad) {
  for (const std::string name : {"other.m3g", "OTHER.M3G", "a.m3g.jpg"}) {
    const Loaded loaded = reference(name);
    EXPECT_EQ(loaded.failure,
              "std::runtime_error: Loader::processExternalRef Nested m3g files not supported yet");
  }
}

TEST_F(ExternalReference, ToAnythingElseEndsTheLoad) {
  for (const std::string name : {"a.gif", "", "apng", "http://example.org/a"}) {
    EXPECT_EQ(reference(name).failure,
              "std::runtime_error: Loader::processExternalRef  External reference is not PNG or "
              "M3G")
        << name;
  }
}

TEST_F(ExternalReference, IsTestedForPngFirst) {
  folder.write("a.m3g.png", smallPng());
  EXPECT_EQ(reference("a.m3g.png").failure, "");
  folder.write("a.jpg.png", smallPng());
  EXPECT_EQ(reference("a.jpg.png").failure, "");
}

TEST_F(ExternalReference, ToAMissingFileEndsTheLoad) {
  EXPECT_EQ(reference("none.png").failure,
            "std::runtime_error: Loader::readPNG Couldn't read PNG file");
  EXPECT_EQ(reference("none.jpg").failure,
            "std::runtime_error: Loader:readJPEG Couldn't read external JPEG file");
}

TEST_F(ExternalReference, IsReadWhateverTheHeaderSays) {
  folder.write("a.png", smallPng());
  for (const bool flag : {false, true}) {
    M3gFile file;
    file.hasExternalReferences = flag;
    file.stored({M3gRecord(EXTERNAL_REFERENCE).text("a.png")});
    const Loaded loaded = loadBytes(file.bytes());
    EXPECT_EQ(loaded.failure, "");
    EXPECT_EQ(loaded.objects.size(), 2u);
  }
}

TEST_F(ExternalReference, CanBeNamedByLaterRecords) {
  folder.write("a.png", smallPng());
  const Loaded loaded = loadRecords({M3gRecord(EXTERNAL_REFERENCE).text("a.png"), anyTexture(2)});
  EXPECT_EQ(loaded.failure, "");
  EXPECT_EQ(loaded.objects.size(), 3u);
}

// Walking the chain anew for each group that holds it would take minutes.
TEST(Loader, AChainOfManyGroupsIsLinkedInOneWalk) {
  constexpr int count = 100000;
  runOnSmallStack([] {
    std::vector<M3gRecord> records{anyGroup()};
    for (int child = 2; child < count + 1; ++child) {
      records.push_back(M3gRecord(GROUP).plainNode().int32(1).int32(child));
    }
    const Loaded loaded = loadRecords(records);
    ASSERT_EQ(loaded.failure, "");
    const auto leaf = loaded.at<Group>(2);
    const auto middle = loaded.at<Group>(2 + count / 2);
    const auto top = loaded.at<Group>(count + 1);
    EXPECT_EQ(leaf->getDepth(), count - 1);
    EXPECT_EQ(middle->getDepth(), count - 1 - count / 2);
    EXPECT_EQ(top->getDepth(), 0);
    EXPECT_EQ(leaf->getRoot().lock(), top);
    EXPECT_EQ(middle->getRoot().lock(), top);
    EXPECT_EQ(top->getRoot().lock(), top);
    EXPECT_TRUE(middle->isUpdatePending());
    EXPECT_TRUE(middle->isChildUpdatePending());
  });
}

TEST(Loader, CamerasAndLightsOfALoadedWorldAreItsOwnInTheOrderOfTheTree) {
  const Loaded loaded =
      loadRecords({anyCamera(), anyLight(), anyCamera(),
                   M3gRecord(GROUP).plainNode().int32(2).int32(4).int32(3),
                   M3gRecord(WORLD).plainNode().int32(2).int32(5).int32(2).int32(2).int32(0)});
  ASSERT_EQ(loaded.failure, "");
  const auto world = loaded.at<World>(6);
  ASSERT_EQ(world->getCameras().size(), 2u);
  EXPECT_EQ(world->getCameras()[0], loaded.at<Camera>(4));
  EXPECT_EQ(world->getCameras()[1], loaded.at<Camera>(2));
  ASSERT_EQ(world->getLights().size(), 1u);
  EXPECT_EQ(world->getLights()[0], loaded.at<Light>(3));
}

TEST(Loader, AFailureKeepsTheTextOfTheSetter) {
  M3gRecord fog(FOG);
  fog.object3D().rgb(0).byte(80).float32(-1);
  EXPECT_EQ(loadRecords({fog}).failure, "std::invalid_argument: Fog.setDensity -- density < 0");
}

}  // namespace
}  // namespace varnel_m3g
