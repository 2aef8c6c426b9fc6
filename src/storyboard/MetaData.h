#pragma once

#include "core/Status.h"
#include "xml/KeptXml.h"
#include "xml/MemberTable.h"

#include <map>
#include <string>

/// Free-form data of an object: XML subtrees by name.
namespace vantrel {

using MetaDataMap = std::map<std::string, KeptXmlPtr>;

/// The element name of the entry that every new object has, and the key that it gets in the map.
inline constexpr const char* kTrackStatus = "TrackStatus";
inline constexpr const char* kTrackStatusKey = "trackstatus";

/// Gives `map` the entry of a new object: which tracks show, none of them.
void AddTrackStatus(MetaDataMap& map);

/// Stores a deep copy of `node` under the key in lower case; what was there is released. A key that
/// can't name an element, or no node, gives `status::kBadArgument`.
Status SetMetaDataEntry(MetaDataMap& map, std::string key, const xmlNode* node);

/// Looks for the key as given, then in lower case. What is handed out stays the map's. Null or an
/// empty key gives `status::kBadArgument`, an unknown one `status::kNothingDone`.
Status GetMetaDataEntry(const MetaDataMap& map, std::string key, xmlNode** out);

/// Writes one container an entry, named by its key, unless the map is empty.
void SaveMetaData(const MemberPlace& place, const char* name, const MetaDataMap& map);

/// Keeps the first child element of each child of `element`, under the name of that child.
void LoadMetaData(const xmlNode* element, MetaDataMap& map);

} // namespace vantrel
