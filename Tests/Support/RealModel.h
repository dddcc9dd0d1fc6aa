#pragma once

#include <filesystem>
#include <map>
#include <memory>

#include "Host/StepFile/StepReader.h"
#include "Tests/Support/SharedModels.h"

namespace qor::test {

/// What holds for a real model. Each is read once in a program: tests leave it as it is.
class RealModelTest : public ModelTest {
 protected:
  const std::shared_ptr<fc::Data> data = model(GetParam());

 private:
  static const std::shared_ptr<fc::Data>& model(const std::filesystem::path& path) {
    static std::map<std::filesystem::path, std::shared_ptr<fc::Data>> models;
    std::shared_ptr<fc::Data>& found = models[path];
    if (!found) found = host::step::readStepFile(path).data;
    return found;
  }
};

}  // namespace qor::test
