#pragma once

#include <cstddef>
#include <cstdint>
#include <functional>
#include <optional>
#include <string>
#include <vector>

#include "Qor/Math/Extent.h"
#include "Qor/Math/Matrix.h"
#include "Qor/Math/Point.h"

namespace qor::fc {
class FcBase;
}

namespace qor::host::targets {

/// How a surface or a line looks; numbers from 0 to 1.
struct SceneMaterial {
  float red = 0.6f;
  float green = 0.6f;
  float blue = 0.6f;
  float opacity = 1;

  friend bool operator==(const SceneMaterial&, const SceneMaterial&) = default;
};

/// Index of a `SceneMaterial` in its scene.
using MaterialIndex = std::uint32_t;
/// In a block: the material that is in force where the block is used.
constexpr MaterialIndex inheritedMaterial = 0xFFFFFFFF;

/// Triangles of one material: `count` triangles from the one numbered `first`.
struct MeshRange {
  MaterialIndex material;
  std::size_t first;
  std::size_t count;
};

/// Triangles, counter-clockwise for one who looks at their outside.
struct Mesh {
  std::vector<math::Point3d> points;
  std::vector<std::uint32_t> triangles;  ///< three indices of `points` each
  std::vector<MeshRange> ranges;         ///< all triangles, one after the other
};

struct SceneLine {
  MaterialIndex material;
  std::vector<math::Point3d> points;
};

struct SceneText {
  MaterialIndex material;
  std::string text;
  math::Matrix frame;  ///< where it begins, and along which axes it runs
};

/// A use of a block, or of an object's content, in another frame.
struct SceneInstance {
  std::size_t block;  ///< index in the scene's `blocks`
  math::Matrix frame;
  MaterialIndex material;  ///< stands for `inheritedMaterial` in the block
};

/// What is drawn in one frame, in metres. Coordinates are finite; texts are UTF-8 without control
/// characters.
struct SceneContent {
  Mesh mesh;
  std::vector<SceneLine> lines;
  std::vector<SceneText> texts;
  std::vector<SceneInstance> instances;

  bool isEmpty() const {
    return mesh.triangles.empty() && lines.empty() && texts.empty() && instances.empty();
  }
};

/// Something that has a name in the model: a product, or what it hangs on.
struct SceneObject {
  const fc::FcBase* entity = nullptr;  ///< not owned; null when it was no entity
  std::string className{};             ///< "IFCWALL"
  std::string guid{};                  ///< of 22 characters
  std::string name{};
  std::optional<std::size_t> parent{};  ///< index in the scene's `objects`; no cycles
  math::Matrix frame{};                 ///< into project coordinates
  SceneContent content{};               ///< in that frame
};

/// What a model draws, kept: objects in the order in which they were opened, and the blocks that
/// they share.
struct Scene {
  std::vector<SceneMaterial> materials;
  std::vector<SceneContent> blocks;  ///< a block uses only blocks before it
  std::vector<SceneObject> objects;

  /// Whatever an object draws, block by block: the content, its frame into project coordinates, and
  /// what its inherited material is. Depth first.
  using Visitor = std::function<void(const SceneContent&, const math::Matrix&, MaterialIndex)>;
  void forEachContent(const SceneObject& object, const Visitor& visit) const;
  /// The box of all triangles, lines and places of text, in project coordinates; empty for none.
  math::Extent box() const;
};

}  // namespace qor::host::targets
