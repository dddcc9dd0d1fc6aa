#pragma once

#include <gtest/gtest.h>

#include <charconv>
#include <memory>
#include <sstream>
#include <string>
#include <vector>

#include "Fc/FcBase.h"
#include "Fc/Reflection/ValueSink.h"
#include "Fc/Reflection/ValueSource.h"

namespace qor::test {

using Entities = std::vector<std::shared_ptr<fc::FcBase>>;

// Tokens as a file spells them, with a blank between two: "( 'a' $ )", "IFCLABEL( 'x' )", "2.5",
// "7", ".T.", "*". "x01ff" is a binary, "?" no value; "#1" is the first of the entities that a
// source or a sink was given, "#0" names none.

/// Hands out tokens, and fails the test on a call that doesn't fit the token that comes next.
class TokenSource : public fc::ValueSource {
 public:
  TokenSource(const std::string& tokens, Entities entities) : m_entities(std::move(entities)) {
    std::istringstream stream(tokens);
    for (std::string token; stream >> token;) m_tokens.push_back(token);
  }
  bool isAtEnd() const { return m_next == m_tokens.size(); }
  /// "wrongKind", "unknownType IFCBAG", joined by "; ".
  const std::string& rejections() const { return m_rejections; }

  Kind next() override {
    const std::string& token = m_tokens.at(m_next);
    const char first = token.front();
    if (token == "(") return Kind::list;
    if (token.back() == '(') return Kind::typed;
    if (first == '$') return Kind::null;
    if (first == '*') return Kind::derived;
    if (first == '\'') return Kind::text;
    if (first == '#') return Kind::entity;
    if (first == '.') return Kind::enumerator;
    if (first == 'x') return Kind::binary;
    if (first != '-' && !std::isdigit(first)) return Kind::bad;
    return token.find('.') == std::string::npos ? Kind::integer : Kind::real;
  }
  void skip() override {
    int depth = 0;
    do {
      const std::string& token = m_tokens.at(m_next++);
      depth += token.back() == '(' ? 1 : token == ")" ? -1 : 0;
    } while (depth > 0);
  }
  bool takeReal(double& out) override {
    EXPECT_TRUE(next() == Kind::real || next() == Kind::integer);
    return parse(out);
  }
  bool takeInteger(std::int64_t& out) override {
    EXPECT_TRUE(next() == Kind::integer);
    return parse(out);
  }
  void takeText(std::string& out) override { out = inner(Kind::text); }
  std::string_view takeEnumerator() override { return m_name = inner(Kind::enumerator); }
  void takeBinary(std::vector<std::uint8_t>& out) override {
    const std::string digits = take(Kind::binary).substr(1);
    out.clear();
    for (std::size_t i = 0; i < digits.size(); i += 2)
      out.push_back(static_cast<std::uint8_t>(std::stoi(digits.substr(i, 2), nullptr, 16)));
  }
  const std::shared_ptr<fc::FcBase>* takeEntity() override {
    const auto number = std::stoul(take(Kind::entity).substr(1));
    return number == 0 ? nullptr : &m_entities.at(number - 1);
  }
  void openList() override { take(Kind::list); }
  bool more() override {
    const bool ends = m_tokens.at(m_next) == ")";
    m_next += ends;
    return !ends;
  }
  std::string_view openTyped() override {
    m_name = take(Kind::typed);
    m_name.pop_back();
    return m_name;
  }
  void closeTyped() override { EXPECT_EQ(m_tokens.at(m_next++), ")"); }
  void rejected(fc::Rejection reason, std::string_view found, const fc::TypeOperations&) override {
    static constexpr const char* names[] = {"wrongKind",   "wrongClass", "unknownEnumerator",
                                            "unknownType", "wrongCount", "outOfRange"};
    if (!m_rejections.empty()) m_rejections += "; ";
    m_rejections += names[static_cast<int>(reason)];
    if (!found.empty()) m_rejections += " " + std::string(found);
  }

 private:
  const std::string& take(Kind kind) {
    EXPECT_EQ(next(), kind) << m_tokens.at(m_next);
    return m_tokens.at(m_next++);
  }
  std::string inner(Kind kind) {
    const std::string& token = take(kind);
    return token.substr(1, token.size() - 2);
  }
  template <class Number>
  bool parse(Number& out) {
    const std::string& token = m_tokens.at(m_next++);
    return std::from_chars(token.data(), token.data() + token.size(), out).ec == std::errc();
  }

  std::vector<std::string> m_tokens;
  std::size_t m_next = 0;
  Entities m_entities;
  std::string m_name;
  std::string m_rejections;
};

/// Records what it is given.
class TokenSink : public fc::ValueSink {
 public:
  explicit TokenSink(Entities entities) : m_entities(std::move(entities)) {}
  const std::string& tokens() const { return m_tokens; }

  void null() override { add("$"); }
  void integer(std::int64_t value) override { add(std::to_string(value)); }
  void real(double value) override {
    char buffer[40];
    std::string token(buffer, std::to_chars(buffer, buffer + sizeof buffer, value).ptr);
    add(token.find('.') == std::string::npos ? token + "." : token);
  }
  void text(std::string_view value) override { add("'" + std::string(value) + "'"); }
  void enumerator(std::string_view name) override { add("." + std::string(name) + "."); }
  void binary(std::span<const std::uint8_t> bytes) override {
    std::string token = "x";
    for (const std::uint8_t byte : bytes) {
      token += "0123456789abcdef"[byte / 16];
      token += "0123456789abcdef"[byte % 16];
    }
    add(token);
  }
  void entity(const fc::FcBase& entity) override {
    std::size_t i = 0;
    while (m_entities.at(i).get() != &entity) ++i;
    add("#" + std::to_string(i + 1));
  }
  void openList() override { add("("); }
  void closeList() override { add(")"); }
  void openTyped(std::string_view upperName) override { add(std::string(upperName) + "("); }
  void closeTyped() override { add(")"); }

 private:
  void add(const std::string& token) { m_tokens += (m_tokens.empty() ? "" : " ") + token; }

  Entities m_entities;
  std::string m_tokens;
};

}  // namespace qor::test
