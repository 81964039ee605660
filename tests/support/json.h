#ifndef VARNEL_TESTS_SUPPORT_JSON_H
#define VARNEL_TESTS_SUPPORT_JSON_H

#include <cstddef>
#include <map>
#include <string>
#include <vector>

namespace varnel_test {

/// A value of a JSON text, read for tests. Every look-up that does not fit the value throws
/// std::runtime_error.
class Json {
 public:
  enum class Kind { NOTHING, BOOLEAN, NUMBER, TEXT, ARRAY, OBJECT };

  static Json parse(const std::string& text);

  Kind kind() const { return valueKind; }
  bool isNull() const { return valueKind == Kind::NOTHING; }
  bool boolean() const;
  double number() const;
  /// The number as an int of 32 bits, of whatever sign.
  int int32() const;
  const std::string& text() const;
  const std::vector<Json>& array() const;
  bool has(const std::string& key) const;
  const Json& operator[](const std::string& key) const;

 private:
  class Reader;

  void require(Kind kind) const;

  Kind valueKind = Kind::NOTHING;
  double value = 0;
  std::string characters;
  std::vector<Json> elements;
  std::map<std::string, Json> members;
};

}  // namespace varnel_test

#endif
