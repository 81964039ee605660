#ifndef VARNEL_TESTS_GLES_REFEREE_REPORT_H
#define VARNEL_TESTS_GLES_REFEREE_REPORT_H

#include <cstddef>
#include <string>
#include <vector>

// What the referee's programs write, and what they share. A program is linked once with this
// project's layers and once with another implementation of the same standards, draws the same
// scenes, and reports pictures and answered state on its standard output, a line for each:
//   picture SCENE RRGGBBAA...        all pixels, row by row from the lower left
//   answer SCENE NAME VALUE...       answered values, error codes

constexpr int refereeSide = 32;

/// One scene: its name and what it draws and asks.
struct Scene {
  const char* name;
  void (*run)();
};

/// The name of the scene that runs.
extern const char* sceneName;

/// Reports the surface as it is.
void reportPicture();
/// Reports values under a name.
void reportAnswer(const std::string& name, const std::vector<double>& values);

/// How many commands the published header declares; naming them all links the program with each.
std::size_t countCommands();

/// Runs each scene in a fresh context of that version of OpenGL ES on a fresh surface, and reports.
/// `arguments` may name the scenes to run. The exit code of the program.
int runScenes(int version, const std::vector<Scene>& scenes, int argumentCount, char** arguments);

#endif  // VARNEL_TESTS_GLES_REFEREE_REPORT_H
