#include "tests/support/recording_driver.h"

#include <array>
#include <cstdio>
#include <cstring>
#include <sstream>
#include <stdexcept>
#include <type_traits>

#include "gles/es1/context_state.h"
#include "gles/es1/parameters.h"
#include "gles/es2/context_state.h"
#include "tests/support/enum_names.h"

namespace {

RecordingDriver* active = nullptr;

struct Parameter {
  std::string type;
  std::string name;
};

// Splits "(GLenum pname, const GLfloat* params)" into its parameters.
std::vector<Parameter> parseParameters(std::string text) {
  std::vector<Parameter> parameters;
  std::istringstream list(text.substr(1, text.size() - 2));
  for (std::string item; std::getline(list, item, ',');) {
    const std::size_t begin = item.find_first_not_of(' ');
    const std::size_t space = item.find_last_of(' ');
    parameters.push_back({item.substr(begin, space - begin), item.substr(space + 1)});
  }
  return parameters;
}

struct Function {
  std::string name;
  std::vector<Parameter> parameters;
};

const std::vector<Function>& functions() {
#define VARNEL_DESCRIBE(need, result, name, alternative, parameters) \
  {#name, parseParameters(#parameters)},
  static const std::vector<Function> all = {VARNEL_DRIVER_FUNCTIONS(VARNEL_DESCRIBE)};
#undef VARNEL_DESCRIBE
  return all;
}

std::string number(double value) {
  char text[40];
  std::snprintf(text, sizeof text, "%g", value);
  return text;
}

std::string primitiveName(unsigned value) {
  static const char* const names[] = {"GL_POINTS",      "GL_LINES",     "GL_LINE_LOOP",
                                      "GL_LINE_STRIP",  "GL_TRIANGLES", "GL_TRIANGLE_STRIP",
                                      "GL_TRIANGLE_FAN"};
  return value < std::size(names) ? names[value] : enumName(value);
}

std::string enumText(const Parameter& parameter, unsigned value) {
  if (parameter.name == "primitive") {
    return primitiveName(value);
  }
  if (value == 0 && parameter.name.find("factor") == std::string::npos) {
    return parameter.name.find("fail") != std::string::npos || parameter.name == "dppass"
               ? "GL_ZERO"
               : "GL_NONE";
  }
  if (value < 2) {
    return value ? "GL_ONE" : "GL_ZERO";
  }
  return enumName(value);
}

std::string maskText(unsigned mask) {
  static const std::pair<unsigned, const char*> bits[] = {{0x4000, "GL_COLOR_BUFFER_BIT"},
                                                          {0x100, "GL_DEPTH_BUFFER_BIT"},
                                                          {0x400, "GL_STENCIL_BUFFER_BIT"}};
  std::string text;
  unsigned rest = mask;
  for (const auto& [bit, name] : bits) {
    if (mask & bit) {
      text += text.empty() ? name : std::string(" | ") + name;
      rest &= ~bit;
    }
  }
  if (rest == 0 && mask != 0) {
    return text;
  }
  char hexadecimal[16];
  std::snprintf(hexadecimal, sizeof hexadecimal, "0x%X", mask);
  return mask ? hexadecimal : "0";
}

// How many values stand behind a pointer to constants; 0 when that is not known.
int valueCount(const std::string& function, const std::string& type, unsigned parameter,
               long count) {
  if (function == "glLoadMatrixf" || function == "glMultMatrixf") {
    return 16;
  }
  if (function == "glClipPlane") {
    return 4;
  }
  if (function.rfind("glDelete", 0) == 0) {
    return static_cast<int>(count);
  }
  if (function.rfind("glVertexAttrib", 0) == 0 && function.size() > 16) {
    return function[14] - '0';
  }
  if (function.rfind("glUniformMatrix", 0) == 0) {
    const int side = function[15] - '0';
    return side * side * static_cast<int>(count);
  }
  if (function.rfind("glUniform", 0) == 0) {
    return (function[9] - '0') * static_cast<int>(count);
  }
  if (type == "const GLfloat*" || type == "const GLint*") {
    return function == "glShaderSource" ? 0 : gles::es1::parameterCount(parameter);
  }
  return 0;
}

template <class Value>
std::string arrayText(const Value* values, int count) {
  std::string text = "[";
  for (int i = 0; i < count; ++i) {
    text += (i ? ", " : "") + number(static_cast<double>(values[i]));
  }
  return text + "]";
}

}  // namespace

// What one call does with its arguments.
struct Recorder {
  explicit Recorder(std::size_t index) : function(functions().at(index)) {
    call.name = function.name;
    call.text = function.name + "(";
  }

  template <class Value>
  void argument(Value value) {
    const Parameter& parameter = function.parameters.at(position++);
    call.text += (position > 1 ? ", " : "") + textOf(parameter, value);
  }

  template <class Value>
  std::string textOf(const Parameter& parameter, Value value) {
    if constexpr (std::is_pointer_v<Value>) {
      return pointerText(parameter, value);
    } else if constexpr (std::is_floating_point_v<Value>) {
      return number(static_cast<double>(value));
    } else {
      if (parameter.type == "GLenum") {
        lastEnum = static_cast<unsigned>(value);
        return enumText(parameter, lastEnum);
      }
      if (parameter.type == "GLbitfield") {
        return maskText(static_cast<unsigned>(value));
      }
      if (parameter.type == "GLsizei") {
        lastCount = static_cast<long>(value);
      }
      if (parameter.name == "internalformat") {
        return enumName(static_cast<unsigned>(value));
      }
      return std::to_string(value);
    }
  }

  template <class Pointed>
  std::string pointerText(const Parameter& parameter, Pointed* value) {
    const void* address = value;
    call.addresses.push_back(address);
    if (!address) {
      return "null";
    }
    using Value = std::remove_const_t<Pointed>;
    if constexpr (std::is_same_v<Pointed, const char>) {
      return std::string("\"") + value + "\"";
    } else if constexpr (std::is_arithmetic_v<Value> && std::is_const_v<Pointed>) {
      const int count = valueCount(function.name, parameter.type, lastEnum, lastCount);
      return count > 0 ? arrayText(value, count) : "<ptr>";
    } else if constexpr (std::is_arithmetic_v<Value>) {
      writeAnswer(value);
    }
    return "<ptr>";
  }

  template <class Value>
  void writeAnswer(Value* out) {
    if (function.name.rfind("glGen", 0) == 0 && lastCount > 0) {
      for (long i = 0; i < lastCount; ++i) {
        out[i] = static_cast<Value>(active->nextName_++);
      }
      return;
    }
    const auto found = active->answers_.find(lastEnum);
    if (function.name.rfind("glGet", 0) == 0 && found != active->answers_.end()) {
      for (std::size_t i = 0; i < found->second.size(); ++i) {
        out[i] = static_cast<Value>(found->second[i]);
      }
    }
  }

  void finish() {
    call.text += ")";
    active->calls_.push_back(call);
    const auto action = active->actions_.find(call.name);
    if (action != active->actions_.end()) {
      action->second(call);
    }
  }

  template <class Result>
  Result result() {
    if constexpr (std::is_same_v<Result, const unsigned char*>) {
      const auto found = active->strings_.find(lastEnum);
      return found == active->strings_.end()
                 ? nullptr
                 : reinterpret_cast<const unsigned char*>(found->second.c_str());
    } else if constexpr (!std::is_void_v<Result>) {
      if (call.name == "glGetError" && !active->errors_.empty()) {
        const unsigned error = active->errors_.front();
        active->errors_.pop_front();
        return static_cast<Result>(error);
      }
      const auto found = active->results_.find(call.name);
      if (found != active->results_.end()) {
        return static_cast<Result>(found->second);
      }
      if (call.name == "glCreateShader" || call.name == "glCreateProgram") {
        return static_cast<Result>(active->nextName_++);
      }
      return Result();
    }
  }

  const Function& function;
  RecordingDriver::Call call;
  std::size_t position = 0;
  unsigned lastEnum = 0;
  long lastCount = 0;
};

namespace {

enum FunctionIndex : std::size_t {
#define VARNEL_INDEX(need, result, name, alternative, parameters) index_##name,
  VARNEL_DRIVER_FUNCTIONS(VARNEL_INDEX)
#undef VARNEL_INDEX
};

template <std::size_t Index, class Result, class... Parameters>
Result VARNEL_DRIVER_CALL record(Parameters... parameters) {
  if (!active) {
    return Result();
  }
  Recorder recorder(Index);
  (recorder.argument(parameters), ...);
  recorder.finish();
  return recorder.template result<Result>();
}

template <std::size_t Index, class Result, class... Parameters>
void install(gles::DriverFunction<Result(Parameters...)>& function) {
  function.pointer = &record<Index, Result, Parameters...>;
}

}  // namespace

RecordingDriver::RecordingDriver()
    : formerDriver_(gles::driver), formerStackDepth_(gles::es1::textureStackDepth) {
  if (active) {
    throw std::logic_error("only one RecordingDriver at a time");
  }
  active = this;
#define VARNEL_INSTALL(need, result, name, alternative, parameters) \
  install<index_##name>(gles::driver.name);
  VARNEL_DRIVER_FUNCTIONS(VARNEL_INSTALL)
#undef VARNEL_INSTALL
  answer(0x84E2, {2});     // GL_MAX_TEXTURE_UNITS
  answer(0x0D39, {10});    // GL_MAX_TEXTURE_STACK_DEPTH
  answer(0x0D32, {6});     // GL_MAX_CLIP_PLANES
  answer(0x0D33, {2048});  // GL_MAX_TEXTURE_SIZE
  answer(0x8869, {16});    // GL_MAX_VERTEX_ATTRIBS
  gles::es1::textureStackDepth = -1;
  fillEs1FunctionTable(&es1_, false);
  formerEs1State_ = gles::es1::current;
  es1State_ = es1_.createContextState();
  fillEs2FunctionTable(&es2_);
  formerEs2State_ = gles::es2::current;
  es2State_ = es2_.createContextState();
  setStatesCurrent(true);
}

RecordingDriver::~RecordingDriver() {
  es1_.destroyContextState(es1State_);
  es1_.setCurrentContextState(formerEs1State_);
  es2_.destroyContextState(es2State_);
  es2_.setCurrentContextState(formerEs2State_);
  gles::es1::textureStackDepth = formerStackDepth_;
  gles::driver = formerDriver_;
  active = nullptr;
}

void RecordingDriver::setStatesCurrent(bool areCurrent) {
  es1_.setCurrentContextState(areCurrent ? es1State_ : nullptr);
  es2_.setCurrentContextState(areCurrent ? es2State_ : nullptr);
}

std::vector<std::string> RecordingDriver::calls() const {
  std::vector<std::string> texts;
  for (const Call& call : calls_) {
    texts.push_back(call.text);
  }
  return texts;
}

std::vector<std::string> RecordingDriver::calls(const std::string& name) const {
  std::vector<std::string> texts;
  for (const Call& call : calls_) {
    if (call.name == name) {
      texts.push_back(call.text);
    }
  }
  return texts;
}

std::vector<std::string> RecordingDriver::take() {
  std::vector<std::string> texts = calls();
  clear();
  return texts;
}

void RecordingDriver::answer(unsigned parameter, std::vector<double> values) {
  answers_[parameter] = std::move(values);
}

void RecordingDriver::answerString(unsigned name, const std::string& text) {
  strings_[name] = text;
}

void RecordingDriver::answerResult(const std::string& function, unsigned value) {
  results_[function] = value;
}

void RecordingDriver::onCall(const std::string& function, std::function<void(const Call&)> action) {
  actions_[function] = std::move(action);
}

const void* RecordingDriver::lastAddress(const std::string& function) const {
  for (auto call = calls_.rbegin(); call != calls_.rend(); ++call) {
    if (call->name == function) {
      return call->addresses.empty() ? nullptr : call->addresses.back();
    }
  }
  return nullptr;
}

void RecordingDriver::lack(const std::string& function) {
#define VARNEL_LACK(need, result, name, alternative, parameters) \
  if (function == #name) {                                       \
    gles::driver.name.pointer = nullptr;                         \
  }
  VARNEL_DRIVER_FUNCTIONS(VARNEL_LACK)
#undef VARNEL_LACK
}
