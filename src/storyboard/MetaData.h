#pragma once

#include "core/Status.h"
#include "xml/KeptXmlPtr.h"
#include "xml/MemberTable.h"

#include <string>

/// Free-form data of an object: XML subtrees by name.
namespace vantrel {

/// The key of the entry that every new object has.
inline constexpr const char* kTrackStatusKey = "trackstatus";

/// Gives `map` the entry of a new object: which tracks show, none of them.
void AddTrackStatus(MetaDataMap& map);

/// The same for an object that has lost it, as a load does: so a save writes what a load gives.
void CompleteMetaData(MetaDataMap& map);

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
