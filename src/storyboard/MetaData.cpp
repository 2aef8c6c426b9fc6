#include "storyboard/MetaData.h"

#include "xml/KeptXml.h"

#include <algorithm>

using std::string;

namespace vantrel {

namespace {

/// As `tolower` does in the classic locale.
void FoldCase(string& key)
{
    std::ranges::transform(key, key.begin(), [](char c) {
        return c >= 'A' && c <= 'Z' ? static_cast<char>(c + 32) : c;
    });
}

bool NamesElement(const string& key)
{
    return xmlValidateNCName(XmlChars(key.c_str()), 0) == 0;
}

} // namespace

void AddTrackStatus(MetaDataMap& map)
{
    KeptXmlPtr visible{ xmlNewNode(nullptr, XmlChars("Visible")) };
    xmlNode* audio = AddElement(visible.get(), "Audio");
    AddValue<typed::Bool>(audio, "Native", false);
    AddValue<typed::Bool>(audio, "Narration", false);
    AddValue<typed::Bool>(audio, "SoundEffect", false);
    if (visible)
        map.insert_or_assign(kTrackStatusKey, std::move(visible));
}

void CompleteMetaData(MetaDataMap& map)
{
    const auto found = map.find(kTrackStatusKey);
    if (found == map.end() || !found->second)
        AddTrackStatus(map);
}

Status SetMetaDataEntry(MetaDataMap& map, string key, const xmlNode* node)
{
    FoldCase(key);
    if (!NamesElement(key))
        return status::kBadArgument;
    KeptXmlPtr copy{ CopyXml(node).release() };
    if (!copy)
        return status::kBadArgument;
    map.insert_or_assign(std::move(key), std::move(copy));
    return status::kOk;
}

Status GetMetaDataEntry(const MetaDataMap& map, string key, xmlNode** out)
{
    if (!out || key.empty())
        return status::kBadArgument;
    auto entry = map.find(key);
    if (entry == map.end()) {
        FoldCase(key);
        entry = map.find(key);
    }
    if (entry == map.end())
        return status::kNothingDone;
    *out = entry->second.get();
    return status::kOk;
}

void SaveMetaData(const MemberPlace& place, const char* name, const MetaDataMap& map)
{
    if (map.empty())
        return;
    xmlNode* element = AddMember(place, name);
    for (const auto& [key, kept] : map) {
        if (kept && NamesElement(key))
            (void)AppendKeptXml(AddElement(element, key.c_str()), kept); // a lost entry is no harm
    }
}

void LoadMetaData(const xmlNode* element, MetaDataMap& map)
{
    for (const xmlNode* entry : ChildElements(element)) {
        const xmlNode* content = NextElement(entry->children);
        if (content && !entry->ns)
            map.insert_or_assign(string(NameOf(entry)), KeptXmlPtr{ CopyXml(content).release() });
    }
}

} // namespace vantrel
