#include "Fc/Document/Document.h"

#include "Fc/Core/Kernel/FcProject.h"
#include "Fc/Data.h"
#include "Fc/Drawing/FcGenerateParams.h"
#include "Qor/Math/Epsilon.h"

namespace qor::fc::document {

Document::Document(const std::shared_ptr<Data>& data) : m_data(data) {}

void Document::generate(FcDrawInterface& target) const {
  auto* const generateInterface = dynamic_cast<generate::GenerateInterface*>(&target);
  if (!m_data || !generateInterface) return;
  FcGenerateParams params(*generateInterface, *this, m_drawStatus, *m_data, nullptr, nullptr,
                          nullptr);
  const math::EpsilonSave save;
  math::Epsilon::set(1000.0, false);
  if (const auto project = m_data->project()) project->generate(params);
}

ObjectInterface* Document::object(const std::shared_ptr<core::kernel::FcRoot>& /*root*/) const {
  return &m_object;
}

}  // namespace qor::fc::document
