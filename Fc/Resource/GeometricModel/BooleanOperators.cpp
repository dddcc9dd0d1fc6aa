#include "Fc/Resource/GeometricModel/BooleanOperators.h"

#include <string>

#include "Fc/Model/Report.h"

namespace qor::fc::resource::geometricmodel {
namespace {

// Reports an operand that the operation can't work on. `which` is "First" or "Second".
bool isSupported(bool supported, const std::string& which, const std::string& operation) {
  if (!supported) {
    report(which + " operand of boolean " + operation +
           " operation has type which is not supported for " + operation + " operations");
  }
  return supported;
}

bool hasEnd(const FcBooleanOperand& operand) {
  return operand.isSet() && !operand.isHalfSpaceSolid();
}

}  // namespace

bool operandsFit(const FcBooleanResult& result, const char* operation, bool mayCutWithHalfSpace) {
  return isSupported(hasEnd(result.FirstOperand()), "First", operation) &&
         isSupported(
             mayCutWithHalfSpace ? result.SecondOperand().isSet() : hasEnd(result.SecondOperand()),
             "Second", operation);
}

}  // namespace qor::fc::resource::geometricmodel
