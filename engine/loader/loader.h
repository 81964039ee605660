#ifndef VARNEL_ENGINE_LOADER_LOADER_H
#define VARNEL_ENGINE_LOADER_LOADER_H

#include <boost/shared_ptr.hpp>
#include <string>

#include "engine/object/object_table.h"

namespace varnel_m3g {

class Image2D;
class M3gObjectInputStream;

/// Reads .m3g, PNG and JPEG files of the local file system into objects; it keeps nothing between
/// calls. Names are taken as they stand, relative to the process's current folder.
///
/// Failures of the files are std::runtime_error; setters that the records go through throw what
/// they throw everywhere. A load that runs out of memory ends in std::runtime_error too.
class Loader {
 public:
  /// Appends to `objects` all objects of the file in file order, after one empty entry; of an image
  /// file its Image2D alone. The name decides on the kind: one that holds ".png", ".jpg" or
  /// ".jpeg", in whatever case, is that image file, any other an .m3g file. What a failed load has
  /// appended is for dropping only: its images have lost their textures' share in them.
  static void load(const char* name, ObjectTable& objects);

  /// Loading from memory: always throws std::runtime_error.
  static void load(const signed char* data, int length, int offset, ObjectTable& objects);

  /// The image of a PNG file as an immutable Image2D, RGB for 3 bytes a pixel and RGBA else; grey
  /// images are not widened.
  static boost::shared_ptr<Image2D> readPNG(const char* name);

  /// The image of a JPEG file as an immutable RGB Image2D; grey images are not widened.
  static boost::shared_ptr<Image2D> readJPEG(const char* name);

 private:
  // Results of readSection(), which the section loop passes over.
  static constexpr int checksumMismatch = -105;
  static constexpr int unknownCompressionScheme = -106;

  static void readFile(const char* name, ObjectTable& objects);
  static int readSection(M3gObjectInputStream& stream, ObjectTable& objects);
  static void appendObject(M3gObjectInputStream& stream, ObjectTable& objects);
  static boost::shared_ptr<Object3D> readObject(M3gObjectInputStream& stream, ObjectTable& objects);
  static boost::shared_ptr<Object3D> processExternalRef(M3gObjectInputStream& stream);
  static std::string lowerCase(const std::string& name);
};

}  // namespace varnel_m3g

#endif
