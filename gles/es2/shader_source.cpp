#include "gles/es2/shader_source.h"

#include <cctype>
#include <cstddef>
#include <vector>

namespace gles::es2 {

namespace {

struct Token {
  enum Kind { WORD, BLANK, LINE_END, OTHER } kind;
  std::string text;
};

bool isWordCharacter(char c) {
  return std::isalnum(static_cast<unsigned char>(c)) || c == '_';
}

std::size_t endOfComment(const std::string& source, std::size_t begin) {
  if (source[begin + 1] == '/') {
    const std::size_t end = source.find('\n', begin);
    return end == std::string::npos ? source.size() : end;
  }
  const std::size_t end = source.find("*/", begin + 2);
  return end == std::string::npos ? source.size() : end + 2;
}

// Comments are blanks, which keep the line ends inside them.
std::vector<Token> tokenise(const std::string& source) {
  std::vector<Token> tokens;
  for (std::size_t at = 0; at < source.size();) {
    std::size_t end = at + 1;
    Token::Kind kind = Token::OTHER;
    const char c = source[at];
    if (c == '/' && end < source.size() && (source[end] == '/' || source[end] == '*')) {
      kind = Token::BLANK;
      end = endOfComment(source, at);
    } else if (c == '\n') {
      kind = Token::LINE_END;
    } else if (std::isspace(static_cast<unsigned char>(c))) {
      kind = Token::BLANK;
    } else if (isWordCharacter(c)) {
      kind = Token::WORD;
      while (end < source.size() && isWordCharacter(source[end])) {
        ++end;
      }
    }
    tokens.push_back({kind, source.substr(at, end - at)});
    at = end;
  }
  return tokens;
}

bool isPrecision(const std::string& word) {
  return word == "lowp" || word == "mediump" || word == "highp";
}

// The token after `at` that is neither blank nor line end; the number of tokens if there is none.
std::size_t nextWord(const std::vector<Token>& tokens, std::size_t at) {
  do {
    ++at;
  } while (at < tokens.size() &&
           (tokens[at].kind == Token::BLANK || tokens[at].kind == Token::LINE_END));
  return at;
}

// The token after the "precision mediump float;" that begins at `at`; `at` if there is none.
std::size_t endOfPrecisionStatement(const std::vector<Token>& tokens, std::size_t at) {
  const std::size_t qualifier = nextWord(tokens, at);
  if (qualifier >= tokens.size() || !isPrecision(tokens[qualifier].text)) {
    return at;
  }
  const std::size_t type = nextWord(tokens, qualifier);
  const std::size_t semicolon = type < tokens.size() ? nextWord(tokens, type) : type;
  return semicolon < tokens.size() && tokens[semicolon].text == ";" ? semicolon + 1 : at;
}

// The token of the name that follows a '#' at `at`, or the number of tokens.
std::size_t directiveName(const std::vector<Token>& tokens, std::size_t at) {
  do {
    ++at;
  } while (at < tokens.size() && tokens[at].kind == Token::BLANK);
  return at;
}

bool isVersionDirective(const std::vector<Token>& tokens, std::size_t at) {
  const std::size_t name = tokens[at].text == "#" ? directiveName(tokens, at) : tokens.size();
  return name < tokens.size() && tokens[name].text == "version";
}

void appendLineEnds(std::string& out, const std::string& text) {
  for (const char c : text) {
    if (c == '\n') {
      out += c;
    }
  }
}

}  // namespace

std::string versionedSource(const std::string& source) {
  const std::vector<Token> tokens = tokenise(source);
  for (std::size_t at = 0; at < tokens.size(); ++at) {
    if (isVersionDirective(tokens, at)) {
      return source;
    }
  }
  return "#version 100\n#line 1\n" + source;
}

std::string desktopSource(const std::string& source) {
  // The macros' own names are reserved for the driver, so that others stand in for them.
  std::string out =
      "#version 120\n"
      "#define VARNEL_ES 1\n"
      "#define VARNEL_FRAGMENT_PRECISION_HIGH 1\n"
      "#line 0\n";
  const std::vector<Token> tokens = tokenise(source);
  for (std::size_t at = 0; at < tokens.size();) {
    const Token& token = tokens[at];
    std::size_t end = at + 1;
    if (isVersionDirective(tokens, at)) {
      while (end < tokens.size() && tokens[end].kind != Token::LINE_END) {
        ++end;
      }
    } else if (token.text == "precision" && endOfPrecisionStatement(tokens, at) != at) {
      end = endOfPrecisionStatement(tokens, at);
    } else if (token.text == "GL_ES") {
      out += "VARNEL_ES";
      at = end;
      continue;
    } else if (token.text == "GL_FRAGMENT_PRECISION_HIGH") {
      out += "VARNEL_FRAGMENT_PRECISION_HIGH";
      at = end;
      continue;
    } else if (!isPrecision(token.text)) {
      out += token.text;
      at = end;
      continue;
    }
    for (; at < end; ++at) {
      appendLineEnds(out, tokens[at].text);
    }
    out += ' ';
  }
  return out;
}

}  // namespace gles::es2
