#ifndef VARNEL_ENGINE_LOADER_FILE_NAME_H
#define VARNEL_ENGINE_LOADER_FILE_NAME_H

#include <filesystem>

namespace varnel_m3g {

/// A file's name in UTF-8, as Java and the files' references give it, in the form in which this
/// system opens files. Empty, which names no file, where the bytes are no UTF-8 and the system
/// needs it to be.
std::filesystem::path systemFileName(const char* name);

}  // namespace varnel_m3g

#endif
