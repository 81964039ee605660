// The same small programs on this project's layers and on the system's own EGL and OpenGL ES: the
// pictures and the answered state are the same, but for the differences listed here.

#include <cstdio>
#include <cstdlib>
#include <sstream>
#include <string>
#include <vector>

#include <gtest/gtest.h>

namespace {

/// What one channel of a pixel may differ by: the two round colours in different places.
constexpr int channelTolerance = 2;

struct Line {
  std::string kind;
  std::string scene;
  std::string name;
  std::string values;
};

struct Report {
  std::vector<Line> lines;
  int status = -1;
};

Report run(const std::string& program, const std::string& environment) {
  const std::string command =
      environment + " " VARNEL_BUILD_DIR "/tests/gles/referee/" + program + " </dev/null";
  Report report;
  FILE* output = popen(command.c_str(), "r");
  if (!output) {
    return report;
  }
  std::string text;
  char part[4096];
  for (std::size_t length; (length = fread(part, 1, sizeof part, output)) > 0;) {
    text.append(part, length);
  }
  report.status = pclose(output);
  std::istringstream lines(text);
  for (std::string line; std::getline(lines, line);) {
    std::istringstream words(line);
    Line read;
    words >> read.kind >> read.scene;
    if (read.kind == "answer") {
      words >> read.name;
    }
    std::getline(words >> std::ws, read.values);
    report.lines.push_back(read);
  }
  return report;
}

/// A difference that is meant, by the scene and what an answer's name ends in ("" for pictures).
struct Difference {
  const char* scene;
  const char* name;
  const char* reason;
};

const Difference es1Differences[] = {
    {"byte-colours", "", "unsigned bytes of colour arrays are cast to floats, not scaled"},
    {"initial-state", "GL_NUM_COMPRESSED_TEXTURE_FORMATS", "the query is the desktop driver's"},
    {"changed-state", "GL_NUM_COMPRESSED_TEXTURE_FORMATS", "the query is the desktop driver's"},
    {"initial-state", "GL_IMPLEMENTATION_COLOR_READ_FORMAT_OES", "the driver is free in it"},
    {"changed-state", "GL_IMPLEMENTATION_COLOR_READ_FORMAT_OES", "the driver is free in it"},
};

const Difference es2Differences[] = {
    {"state", "GL_NUM_COMPRESSED_TEXTURE_FORMATS", "the query is the desktop driver's"},
    {"state", "GL_IMPLEMENTATION_COLOR_READ_FORMAT", "any layer is free in it"},
    {"shaders", "precision", "desktop shaders compute in full precision whatever is asked for"},
};

bool endsWith(const std::string& text, const std::string& end) {
  return text.size() >= end.size() && text.compare(text.size() - end.size(), end.size(), end) == 0;
}

template <std::size_t count>
bool isMeant(const Difference (&differences)[count], const Line& line) {
  for (const Difference& difference : differences) {
    const std::string name = difference.name;
    const bool named = name.empty() ? line.kind == "picture" : endsWith(line.name, name);
    if (line.scene == difference.scene && named) {
      return true;
    }
  }
  return false;
}

int byteAt(const std::string& picture, std::size_t index) {
  return static_cast<int>(std::strtol(picture.substr(2 * index, 2).c_str(), nullptr, 16));
}

/// The first pixel that differs beyond the tolerance, in words; empty if there is none.
std::string differentPixel(const std::string& own, const std::string& system) {
  if (own.size() != system.size() || own.empty()) {
    return "the pictures have different sizes";
  }
  for (std::size_t i = 0; i < own.size() / 2; ++i) {
    if (std::abs(byteAt(own, i) - byteAt(system, i)) > channelTolerance) {
      return "pixel " + std::to_string(i / 4) + " is " + own.substr(i / 4 * 8, 8) + " instead of " +
             system.substr(i / 4 * 8, 8);
    }
  }
  return "";
}

bool hasSeveralColours(const std::string& picture) {
  for (std::size_t i = 8; i + 8 <= picture.size(); i += 8) {
    if (picture.compare(i, 8, picture, 0, 8) != 0) {
      return true;
    }
  }
  return false;
}

template <std::size_t count>
void compare(const std::string& version, const Difference (&differences)[count]) {
  const Report own = run(version + "_own", "");
  // The system's libraries keep memory to the end of the process.
  const Report system = run(version + "_system", "ASAN_OPTIONS=detect_leaks=0");
  ASSERT_EQ(own.status, 0);
  ASSERT_EQ(system.status, 0);
  ASSERT_EQ(own.lines.size(), system.lines.size());
  std::size_t pictures = 0;
  std::size_t colourful = 0;
  for (std::size_t i = 0; i < own.lines.size(); ++i) {
    const Line& mine = own.lines[i];
    const Line& other = system.lines[i];
    ASSERT_EQ(mine.kind + mine.scene + mine.name, other.kind + other.scene + other.name);
    if (mine.kind == "picture") {
      ++pictures;
      colourful += hasSeveralColours(mine.values);
    }
    if (mine.values == other.values || isMeant(differences, mine)) {
      continue;
    }
    if (mine.kind == "picture") {
      EXPECT_EQ(differentPixel(mine.values, other.values), "")
          << "scene " << mine.scene << ", line " << i + 1;
    } else {
      EXPECT_EQ(mine.values, other.values) << "scene " << mine.scene << ", " << mine.name;
    }
  }
  // A blank picture proves nothing, and only tests that let no fragment pass leave one.
  EXPECT_GT(pictures, 60u);
  EXPECT_GT(colourful, pictures * 9 / 10);
}

TEST(Referee, OpenGlEs11) {
  compare("es1", es1Differences);
}

TEST(Referee, OpenGlEs20) {
  compare("es2", es2Differences);
}

}  // namespace
