#include "tests/support/json.h"

#include <cstdint>
#include <cstdlib>
#include <cstring>
#include <stdexcept>

namespace varnel_test {

class Json::Reader {
 public:
  explicit Reader(const std::string& text) : text(text) {}

  Json document() {
    Json json = value();
    skipBlanks();
    if (at != text.size()) {
      fail();
    }
    return json;
  }

 private:
  [[noreturn]] void fail() const {
    throw std::runtime_error("no JSON at character " + std::to_string(at));
  }

  void skipBlanks() {
    while (at < text.size() && std::strchr(" \t\r\n", text[at]) != nullptr) {
      ++at;
    }
  }

  bool take(char character) {
    skipBlanks();
    if (at < text.size() && text[at] == character) {
      ++at;
      return true;
    }
    return false;
  }

  void expect(char character) {
    if (!take(character)) {
      fail();
    }
  }

  bool takeWord(const char* word) {
    if (text.compare(at, std::strlen(word), word) != 0) {
      return false;
    }
    at += std::strlen(word);
    return true;
  }

  Json value() {
    skipBlanks();
    Json json;
    if (take('{')) {
      json.valueKind = Kind::OBJECT;
      for (bool more = !take('}'); more; more = !take('}')) {
        const std::string key = string();
        expect(':');
        json.members[key] = value();
        take(',');
      }
    } else if (take('[')) {
      json.valueKind = Kind::ARRAY;
      for (bool more = !take(']'); more; more = !take(']')) {
        json.elements.push_back(value());
        take(',');
      }
    } else if (at < text.size() && text[at] == '"') {
      json.valueKind = Kind::TEXT;
      json.characters = string();
    } else if (takeWord("true")) {
      json.valueKind = Kind::BOOLEAN;
      json.value = 1;
    } else if (takeWord("false")) {
      json.valueKind = Kind::BOOLEAN;
    } else if (!takeWord("null")) {
      json.valueKind = Kind::NUMBER;
      char* end = nullptr;
      json.value = std::strtod(text.c_str() + at, &end);
      const std::size_t next = static_cast<std::size_t>(end - text.c_str());
      if (next == at) {
        fail();
      }
      at = next;
    }
    return json;
  }

  std::string string() {
    expect('"');
    std::string characters;
    while (at < text.size() && text[at] != '"') {
      if (text[at] == '\\' && ++at < text.size()) {
        const char* const escapes = "n\nt\tr\r";
        const char* found = std::strchr(escapes, text[at]);
        if (text[at] == 'u') {
          characters += static_cast<char>(std::strtol(text.substr(at + 1, 4).c_str(), nullptr, 16));
          at += 4;
        } else {
          characters += found != nullptr ? found[1] : text[at];
        }
      } else {
        characters += text[at];
      }
      ++at;
    }
    expect('"');
    return characters;
  }

  const std::string& text;
  std::size_t at = 0;
};

Json Json::parse(const std::string& text) {
  return Reader(text).document();
}

void Json::require(Kind kind) const {
  if (valueKind != kind) {
    throw std::runtime_error("JSON value of another kind");
  }
}

bool Json::boolean() const {
  require(Kind::BOOLEAN);
  return value != 0;
}

double Json::number() const {
  require(Kind::NUMBER);
  return value;
}

int Json::int32() const {
  return static_cast<int>(static_cast<std::uint32_t>(static_cast<std::int64_t>(number())));
}

const std::string& Json::text() const {
  require(Kind::TEXT);
  return characters;
}

const std::vector<Json>& Json::array() const {
  require(Kind::ARRAY);
  return elements;
}

bool Json::has(const std::string& key) const {
  return members.count(key) != 0;
}

const Json& Json::operator[](const std::string& key) const {
  require(Kind::OBJECT);
  const auto found = members.find(key);
  if (found == members.end()) {
    throw std::runtime_error("no JSON member " + key);
  }
  return found->second;
}

}  // namespace varnel_test
