// Loads whatever bytes it is given as a project and saves what came of it: the saved file can be read
// back, and saving it again and again gives the same bytes. The first save may differ from the rest:
// the objects of a time line take their ids in the order of the file, and only a save sorts that.

#include "Fuzz.h"
#include "disc/DSProjectData.h"
#include "project/DSFileService.h"
#include "project/ProjectNode.h"
#include "xml/XmlFile.h"
#include "xml/XmlValue.h"

using namespace vantrel;

namespace {

XmlDocPtr Parse(const std::string& bytes)
{
    return XmlDocPtr{ xmlReadMemory(bytes.data(), static_cast<int>(bytes.size()), nullptr, nullptr,
                                    XML_PARSE_NONET) };
}

/// Loads a document's project and gives it back as a file; empty when there is none.
std::string LoadAndSave(xmlDoc* doc)
{
    xmlNode* root = doc ? xmlDocGetRootElement(doc) : nullptr;
    if (!root)
        return {};
    CDSProjectData project;
    CDSFileService service;
    (void)service.ReadVersion(AsElement(root));
    (void)service.ReadProjectXML(AsNode(root), &project); // any answer is fine

    const XmlDocPtr saved{ xmlNewDoc(XmlChars("1.0")) };
    xmlNode* savedRoot = xmlNewDocNode(saved.get(), nullptr, XmlChars("Root"), nullptr);
    xmlDocSetRootElement(saved.get(), savedRoot);
    (void)AddAttribute(savedRoot, "xmlns:dt", kDataTypesUri);
    fuzz::Require(!Failed(service.WriteProjectXML(AsNode(savedRoot), &project)), "can be saved");
    std::string bytes;
    fuzz::Require(SerializeXml(saved.get(), &bytes), "can be serialised");
    return bytes;
}

std::string LoadSaved(const std::string& bytes)
{
    const XmlDocPtr doc = Parse(bytes);
    fuzz::Require(doc != nullptr, "can be read back");
    return LoadAndSave(doc.get());
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    fuzz::Silence();
    CProjectNode::sm_dwNextID = 1; // so that every run has the same IDs
    const std::string bytes(reinterpret_cast<const char*>(data), size);
    const std::string first = LoadAndSave(Parse(bytes).get());
    if (first.empty())
        return 0;
    const std::string second = LoadSaved(first);
    fuzz::Require(LoadSaved(second) == second, "a further save gives the same bytes");
    return 0;
}
