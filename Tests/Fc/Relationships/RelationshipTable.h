#pragma once

#include <string>
#include <vector>

namespace qor::fc::test {

/// A forward attribute and an inverse attribute that mirrors it on targets of one class.
struct Relationship {
  std::string holder;     ///< "IfcRelAggregates"
  std::string attribute;  ///< "RelatedObjects"
  std::string shape;      ///< "one", "set" or "list"
  std::string target;     ///< "IfcObjectDefinition"
  std::string inverse;    ///< "Decomposes"
  bool single;            ///< The inverse holds one entry at most.

  bool isList() const { return shape != "one"; }
  /// "IfcRelAggregates.RelatedObjects set IfcObjectDefinition.Decomposes ref"
  std::string text() const {
    return holder + '.' + attribute + ' ' + shape + ' ' + target + '.' + inverse +
           (single ? " ref" : " set");
  }
};

/// All of them, written down by hand.
const std::vector<Relationship>& relationshipTable();

}  // namespace qor::fc::test
