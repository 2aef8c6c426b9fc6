// Loads whatever bytes it is given as a project and saves what came of it: the saved file can be read
// back, and saving it again and again gives the same bytes. The first save may differ from the rest:
// the objects of a time line take their ids in the order of the file, and only a save sorts that.

#include "Fuzz.h"
#include "disc/DSProjectData.h"
#include "project/DSFileService.h"
#include "project/ProjectNode.h"
#include "xml/XmlFile.h"
#include "xml/XmlValue.h"

#include <sanitizer/allocator_interface.h>

using namespace vantrel;

namespace {

XmlDocPtr Parse(const std::string& bytes)
{
    return XmlDocPtr{ xmlReadMemory(bytes.data(), static_cast<int>(bytes.size()), nullptr, nullptr,
                                    XML_PARSE_NONET) };
}

/// What a load may hold and a save may write of a file: the smallest element stands for a menu with
/// all that belongs to it, so that the multiple is large, but it is one.
std::size_t Bound(std::size_t size)
{
    return 4096 * size + (4U << 20);
}

/// Loads a document's project and gives it back as a file; empty when there is none. `size` is that
/// of the file.
std::string LoadAndSave(xmlDoc* doc, std::size_t size)
{
    xmlNode* root = doc ? xmlDocGetRootElement(doc) : nullptr;
    if (!root)
        return {};
    const std::size_t before = __sanitizer_get_current_allocated_bytes();
    CDSProjectData project;
    CDSFileService service;
    (void)service.ReadVersion(AsElement(root));
    (void)service.ReadProjectXML(AsNode(root), &project); // any answer is fine
    const std::size_t after = __sanitizer_get_current_allocated_bytes();
    fuzz::Require(after < before || after - before <= Bound(size),
                  "memory keeps to the file's size");

    const XmlDocPtr saved{ xmlNewDoc(XmlChars("1.0")) };
    xmlNode* savedRoot = xmlNewDocNode(saved.get(), nullptr, XmlChars("Root"), nullptr);
    xmlDocSetRootElement(saved.get(), savedRoot);
    (void)AddAttribute(savedRoot, "xmlns:dt", kDataTypesUri);
    fuzz::Require(!Failed(service.WriteProjectXML(AsNode(savedRoot), &project)), "can be saved");
    std::string bytes;
    fuzz::Require(SerializeXml(saved.get(), &bytes), "can be serialised");
    fuzz::Require(bytes.size() <= Bound(size), "what is written keeps to the file's size");
    return bytes;
}

std::string LoadSaved(const std::string& bytes)
{
    const XmlDocPtr doc = Parse(bytes);
    fuzz::Require(doc != nullptr, "can be read back");
    return LoadAndSave(doc.get(), bytes.size());
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    fuzz::Silence();
    CProjectNode::sm_dwNextID = 1; // so that every run has the same IDs
    const std::string bytes(reinterpret_cast<const char*>(data), size);
    const std::string first = LoadAndSave(Parse(bytes).get(), size);
    if (first.empty())
        return 0;
    const std::string second = LoadSaved(first);
    fuzz::Require(LoadSaved(second) == second, "a further save gives the same bytes");
    return 0;
}
