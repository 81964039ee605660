#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <filesystem>

#include "tests/support/loading.h"
#include "tests/support/pixel_fixture.h"
#include "tests/support/temporary_folder.h"

using namespace varnel_m3g;
namespace fs = std::filesystem;

namespace {

/// How many scenes of a folder were loaded, drawn, and showed more than one colour.
struct Count {
  int loaded = 0;
  int drawn = 0;
  int shown = 0;
};

/// Loads the scenes of a folder, animates them and draws them.
class SceneFilesTest : public PixelTest {
 protected:
  SceneFilesTest() : PixelTest(64, 48) {}

  boost::shared_ptr<World> worldOf(const ObjectTable& objects) {
    for (const boost::shared_ptr<Object3D>& object : objects) {
      if (auto world = boost::dynamic_pointer_cast<World>(object)) {
        return world;
      }
    }
    return nullptr;
  }

  static std::vector<fs::path> scenesOf(const fs::path& folder) {
    std::vector<fs::path> files;
    for (const fs::directory_entry& entry : fs::directory_iterator(folder)) {
      if (entry.path().extension() == ".m3g") {
        files.push_back(entry.path());
      }
    }
    std::sort(files.begin(), files.end());
    return files;
  }

  /// Draws a world at some times; answers whether a picture had more than one colour.
  bool show(const boost::shared_ptr<World>& world) {
    bool shown = false;
    for (const int time : {0, 500, 1000}) {
      world->animate(time);
      graphics.releaseTarget();
      graphics.bindTarget(&gl.surface());
      EXPECT_NO_THROW(graphics.render(world));
      const std::vector<Pixel> pixels = gl.read();
      shown = shown || std::any_of(pixels.begin(), pixels.end(),
                                   [&](const Pixel& pixel) { return pixel != pixels[0]; });
    }
    return shown;
  }

  /// Draws each .m3g file of the folder that holds a world with a camera.
  Count drawAll(const fs::path& folder) {
    const varnel_test::CurrentFolder here(folder.string());
    Count count;
    for (const fs::path& file : scenesOf(folder)) {
      const std::string name = file.filename().string();
      SCOPED_TRACE(name);
      const varnel_test::Loaded loaded = varnel_test::loadFile(file.string());
      if (!loaded.failure.empty()) {
        std::printf("%s is refused: %s\n", name.c_str(), loaded.failure.c_str());
        continue;
      }
      ++count.loaded;
      const boost::shared_ptr<World> world = worldOf(loaded.objects);
      if (!world || !world->getActiveCamera()) {
        continue;
      }
      ++count.drawn;
      if (show(world)) {
        ++count.shown;
      } else {
        std::printf("%s shows one colour\n", name.c_str());
      }
    }
    return count;
  }
};

}  // namespace

TEST_F(SceneFilesTest, TheSamplesAreDrawn) {
  const fs::path folder = fs::path(VARNEL_SOURCE_DIR) / "samples";
  const Count count = drawAll(folder);
  EXPECT_EQ(count.shown, static_cast<int>(scenesOf(folder).size()));
  EXPECT_GE(count.shown, 6);
}

// Which of them must be refused is the loader's matter, and what a camera of theirs sees is theirs:
// one of the files moves its mesh out of the view.
TEST_F(SceneFilesTest, FilesByOthersAreDrawn) {
  const char* folder = std::getenv("VARNEL_SAMPLES");
  if (folder == nullptr) {
    GTEST_SKIP() << "VARNEL_SAMPLES names no folder of files by others";
  }
  const Count count = drawAll(folder);
  EXPECT_EQ(count.drawn, count.loaded);
  EXPECT_GT(2 * count.shown, count.drawn);
}
