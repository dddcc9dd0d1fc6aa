#include "Host/StepFile/ParameterSink.h"

#include <cmath>

#include "Host/StepFile/Numbers.h"
#include "Host/StepFile/TextCodec.h"

namespace qor::host::step {

void ParameterSink::null() {
  separate();
  m_out.push_back('$');
}

void ParameterSink::derived() {
  separate();
  m_out.push_back('*');
}

void ParameterSink::integer(std::int64_t value) {
  separate();
  appendInteger(m_out, value);
}

void ParameterSink::real(double value) {
  if (!std::isfinite(value)) {
    ++m_notFinite;
    return null();
  }
  separate();
  appendReal(m_out, value);
}

void ParameterSink::text(std::string_view value) {
  separate();
  appendEncodedText(m_out, value);
}

void ParameterSink::enumerator(std::string_view name) {
  separate();
  m_out.push_back('.');
  m_out += name;
  m_out.push_back('.');
}

void ParameterSink::binary(std::span<const std::uint8_t> bytes) {
  constexpr std::string_view hex = "0123456789ABCDEF";
  separate();
  m_out += "\"0";
  for (const std::uint8_t byte : bytes) {
    m_out.push_back(hex[byte >> 4]);
    m_out.push_back(hex[byte & 0xF]);
  }
  m_out.push_back('"');
}

void ParameterSink::entity(const fc::FcBase& entity) {
  separate();
  m_out.push_back('#');
  appendUnsigned(m_out, m_numberOf(entity));
}

void ParameterSink::openList() {
  separate();
  m_out.push_back('(');
  m_first = true;
}

void ParameterSink::closeList() {
  m_out.push_back(')');
  m_first = false;
}

void ParameterSink::openTyped(std::string_view upperName) {
  separate();
  m_out += upperName;
  m_out.push_back('(');
  m_first = true;
}

void ParameterSink::closeTyped() { closeList(); }

}  // namespace qor::host::step
