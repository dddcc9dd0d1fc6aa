#include "Fc/Shapes/ColourSplit.h"

namespace qor::fc::resource::geometricmodel {

FacesByColour::FacesByColour(const std::vector<std::uint32_t>& colourOfFace,
                             std::size_t colourCount)
    : m_begin(colourCount + 1) {
  for (const std::uint32_t colour : colourOfFace)
    if (colour < colourCount) ++m_begin[colour + 1];
  for (std::size_t colour = 0; colour < colourCount; ++colour)
    m_begin[colour + 1] += m_begin[colour];

  m_faces.resize(m_begin[colourCount]);
  std::vector<std::size_t> next(m_begin.begin(), m_begin.end() - 1);
  for (std::size_t face = 0; face < colourOfFace.size(); ++face)
    if (colourOfFace[face] < colourCount)
      m_faces[next[colourOfFace[face]]++] = static_cast<std::uint32_t>(face);
}

}  // namespace qor::fc::resource::geometricmodel
