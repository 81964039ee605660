#include "engine/loader/loader.h"

#include <boost/pointer_cast.hpp>
#include <cctype>
#include <cstddef>
#include <new>
#include <stdexcept>
#include <string>

#include "engine/loader/file_name.h"
#include "engine/loader/m3g_object_input_stream.h"
#include "engine/object/object3d.h"
#include "engine/scene/group.h"
#include "engine/surface/image2d.h"

namespace varnel_m3g {
namespace {

bool holds(const std::string& name, const char* extension) {
  return name.rfind(extension) != std::string::npos;
}

/// Hands root, depth and pending updates down from the groups at the top of the loaded trees.
void settleTrees(const ObjectTable& objects) {
  for (const boost::shared_ptr<Object3D>& object : objects) {
    const boost::shared_ptr<Group> group = boost::dynamic_pointer_cast<Group>(object);
    if (group && !group->getParent()) {
      group->updateSceneGraphInfo(boost::weak_ptr<Node>());
    }
  }
}

/// Parts the images from `first` on from their textures: the two would keep each other alive when
/// the table of a failed load goes.
void releaseImages(const ObjectTable& objects, std::size_t first) {
  for (std::size_t i = first; i < objects.size(); ++i) {
    const boost::shared_ptr<Image2D> image = boost::dynamic_pointer_cast<Image2D>(objects[i]);
    if (image) {
      image->getTexture()->releaseImage();
    }
  }
}

[[noreturn]] void throwOutOfMemory() {
  throw std::runtime_error("Loader::load:  Out of memory");
}

}  // namespace

std::string Loader::lowerCase(const std::string& name) {
  std::string lower = name;
  for (char& character : lower) {
    character = static_cast<char>(std::tolower(static_cast<unsigned char>(character)));
  }
  return lower;
}

void Loader::load(const char* name, ObjectTable& objects) {
  const std::size_t first = objects.size();
  try {
    readFile(name, objects);
  } catch (const std::bad_alloc&) {
    releaseImages(objects, first);
    throwOutOfMemory();
  } catch (const std::length_error&) {
    releaseImages(objects, first);
    throwOutOfMemory();
  } catch (...) {
    releaseImages(objects, first);
    throw;
  }
}

void Loader::readFile(const char* name, ObjectTable& objects) {
  M3gObjectInputStream stream;
  objects.reserve(1000);
  const std::string lower = lowerCase(name);
  if (holds(lower, ".png")) {
    objects.push_back(readPNG(name));
    return;
  }
  if (holds(lower, ".jpg") || holds(lower, ".jpeg")) {
    objects.push_back(readJPEG(name));
    return;
  }
  stream.open(systemFileName(name), std::ios::in | std::ios::binary);
  if (!stream) {
    throw std::runtime_error("Loader::load:  Can't load file");
  }
  stream.processHeader();
  stream.dumpHeader();
  objects.emplace_back();  // index 0, the null reference
  objects.emplace_back();  // index 1, the file's header
  while (stream.good()) {
    readSection(stream, objects);
  }
  objects.erase(objects.begin());
  settleTrees(objects);
}

void Loader::load(const signed char*, int, int, ObjectTable&) {
  throw std::runtime_error("This version of Loader::load() not implemented");
}

}  // namespace varnel_m3g
