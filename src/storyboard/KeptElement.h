#pragma once

#include "xml/KeptXmlPtr.h"

/// Elements of which an object has members for a part, kept whole so that a save loses nothing of the
/// rest. What is kept has the element's plain form but for "key" and "type", which its place tells.
namespace vantrel {

/// A copy of `element`, or null when it has nothing that `written` lacks, which is what a save of the
/// object writes of its members: white space between elements and the text of "Id" count for nothing.
KeptXmlPtr KeepForeign(const xmlNode* element, const xmlNode* written);

/// A copy of `element` whatever it has. Null gives null.
KeptXmlPtr KeepWhole(const xmlNode* element);

/// Fills `element` with what is kept, and where the members have changed with them: `was` is what a
/// save would write of them as they were kept, `now` as they are.
void SaveOver(xmlNode* element, const xmlNode* kept, const xmlNode* was, const xmlNode* now);

/// Takes texts of no length out of an element that a load will keep: there they are none.
void DropEmptyTexts(xmlNode* element);

} // namespace vantrel
