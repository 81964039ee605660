// Drives the natives of the built library itself, without a virtual machine: the one test of the
// library that also runs where no Java VM is at hand.

#include <gtest/gtest.h>

#include <cstdlib>
#include <fstream>
#include <iterator>
#include <set>
#include <string>
#include <vector>

#include "tests/support/dynamic_library.h"
#include "tests/support/small_java.h"

namespace varnel_test {
namespace {

constexpr int width = 640;
constexpr int height = 480;

#ifdef _WIN32
constexpr const char* libraryName = VARNEL_BUILD_DIR "/varneljni.dll";
constexpr const char* openGlName = "opengl32.dll";
#define DRIVER_CALL __stdcall
#else
constexpr const char* libraryName = VARNEL_BUILD_DIR "/libvarneljni.so";
constexpr const char* openGlName = "libGL.so.1";
#define DRIVER_CALL
#endif

using ReadPixels = void DRIVER_CALL(int, int, int, int, unsigned, unsigned, void*);

const DynamicLibrary& library() {
  static const DynamicLibrary loaded(libraryName);
  return loaded;
}

template <class Result, class... Arguments>
using Native = Result JNICALL(JNIEnv*, jobject, Arguments...);

template <class Result, class... Arguments>
Result call(SmallJava& java, const std::string& name, jobject self, Arguments... arguments) {
  auto* native =
      library().find<Native<Result, Arguments...>>("Java_javax_microedition_m3g_" + name);
  return native(java.env(), self, arguments...);
}

/// The frame that has just been drawn: 3 bytes a pixel, bottom row first.
std::vector<unsigned char> readFrame() {
  constexpr unsigned rgb = 0x1907;
  constexpr unsigned unsignedByte = 0x1401;
  std::vector<unsigned char> pixels(std::size_t{3} * width * height);
  static const DynamicLibrary openGl(openGlName);
  openGl.find<ReadPixels>("glReadPixels")(0, 0, width, height, rgb, unsignedByte, pixels.data());
  return pixels;
}

std::vector<unsigned char> readFile(const char* name) {
  std::ifstream file(name, std::ios::binary);
  return {std::istreambuf_iterator<char>(file), std::istreambuf_iterator<char>()};
}

class Library : public testing::Test {
 protected:
  Library() {
    java.exception.clear();
    java.constructed = [](jobject peer) {
      if (SmallJava::get(peer).className != "javax/microedition/m3g/Graphics3D") {
        call<void>(java, "Object3D_setBackReference", peer, SmallJava::get(peer).handle);
      }
    };
    graphicsClass = java.classOf("javax/microedition/m3g/Graphics3D");
    graphics = call<jobject>(java, "Graphics3D_getInstanceN", graphicsClass);
    call<void>(java, "Graphics3D_initPropsN", graphicsClass);
  }

  std::vector<jobject> load(const std::string& name) {
    const jobject array = call<jobject, jstring>(java, "Loader_loadN__Ljava_lang_String_2",
                                                 graphicsClass, java.newString(name));
    return array ? SmallJava::get(array).elements : std::vector<jobject>();
  }

  /// One for all tests: the library keeps references into it.
  static inline SmallJava& java = *new SmallJava;
  jclass graphicsClass;
  jobject graphics;
};

TEST_F(Library, HandsAllPropertiesToJavaBeforeTheFirstBind) {
  EXPECT_EQ(java.values.size(), 14u);
  EXPECT_EQ(java.values["supportLocalCameraLighting"], 0);
  EXPECT_EQ(java.values["maxSpriteCropDimension"], 256);
  EXPECT_GE(java.values["maxTextureUnits"], 2);
}

TEST_F(Library, RaisesTheJavaExceptionOfAFailedLoad) {
  EXPECT_TRUE(load("no such file").empty());
  EXPECT_EQ(java.exception, "java/io/IOException: Loader::load:  Can't load file");
}

// Where VARNEL_REFERENCE_PIXELS names the frame that another system's library has left, this one's
// must be the same but for two steps of colour: the driver is the same, and only the compiler of the
// transforms and their mathematical functions differ.
TEST_F(Library, LoadsAnimatesAndDrawsTheBundledScene) {
  const std::vector<jobject> objects = load(VARNEL_SOURCE_DIR "/samples/showpiece.m3g");
  ASSERT_EQ(java.exception, "");
  ASSERT_GT(objects.size(), 1u);
  EXPECT_EQ(objects.front(), nullptr);
  const jobject world = objects.back();
  ASSERT_EQ(SmallJava::get(world).className, "javax/microedition/m3g/World");

  const jlong g3d = SmallJava::get(graphics).handle;
  const jlong scene = SmallJava::get(world).handle;
  call<jint, jlong, jint>(java, "Object3D_animateN", world, scene, 1300);
  call<void, jlong, jobject>(java, "Graphics3D_bindTargetN__JLjava_lang_Object_2", graphics, g3d,
                             world);
  ASSERT_EQ(java.exception, "");
  EXPECT_EQ((call<jint, jlong>(java, "Graphics3D_getViewportWidthN", graphics, g3d)), width);
  EXPECT_EQ((call<jint, jlong>(java, "Graphics3D_getViewportHeightN", graphics, g3d)), height);
  call<void, jlong, jlong>(java, "Graphics3D_renderN__JJ", graphics, g3d, scene);
  const std::vector<unsigned char> frame = readFrame();
  call<void, jlong>(java, "Graphics3D_releaseTargetN", graphics, g3d);
  EXPECT_EQ(java.exception, "");

  const std::set<unsigned char> shades(frame.begin(), frame.end());
  EXPECT_GT(shades.size(), 100u) << "a lit, fogged and textured scene has many shades";
  std::ofstream(VARNEL_BUILD_DIR "/showpiece.rgb", std::ios::binary)
      .write(reinterpret_cast<const char*>(frame.data()),
             static_cast<std::streamsize>(frame.size()));

  if (const char* reference = std::getenv("VARNEL_REFERENCE_PIXELS")) {
    const std::vector<unsigned char> other = readFile(reference);
    ASSERT_EQ(other.size(), frame.size()) << reference;
    std::size_t different = 0;
    std::size_t wrong = 0;
    for (std::size_t i = 0; i < frame.size(); ++i) {
      const int difference = std::abs(frame[i] - other[i]);
      different += difference > 0;
      wrong += difference > 2;
    }
    std::printf("%zu of %zu bytes differ\n", different, frame.size());
    EXPECT_EQ(wrong, 0u);
  }
  for (const jobject object : objects) {
    if (object) {
      call<void, jlong>(java, "Object3D_destroyObject3DN", object, SmallJava::get(object).handle);
    }
  }
}

}  // namespace
}  // namespace varnel_test
