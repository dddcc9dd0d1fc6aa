#include "Fc/Resource/Geometry/MapNesting.h"

#include <algorithm>
#include <vector>

namespace qor::fc::resource::geometry {

namespace {

std::vector<const FcRepresentationMap*>& openMaps() {
  thread_local std::vector<const FcRepresentationMap*> maps;
  return maps;
}

}  // namespace

MapNesting::MapNesting(const FcRepresentationMap& map) {
  auto& maps = openMaps();
  m_allowed = maps.size() < limit && std::find(maps.begin(), maps.end(), &map) == maps.end();
  maps.push_back(&map);
}

MapNesting::~MapNesting() { openMaps().pop_back(); }

}  // namespace qor::fc::resource::geometry
