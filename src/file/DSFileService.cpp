#include "project/DSFileService.h"

#include "core/Number.h"
#include "core/PathUtils.h"
#include "core/Version.h"
#include "disc/DSProjectData.h"
#include "xml/KeptXml.h"
#include "xml/XmlFile.h"
#include "xml/XmlPtr.h"
#include "xml/XmlValue.h"

#include <cstdio>

using std::string;
using std::string_view;
using namespace vantrel;

namespace {

/// A new document with the root element of a project file.
XmlDocPtr MakeProjectDocument()
{
    XmlDocPtr doc{ xmlNewDoc(XmlChars("1.0")) };
    if (!doc)
        return nullptr;
    // A few names stand in it many times; without memory for this they are copied.
    doc->dict = xmlDictCreate();
    xmlNode* root = xmlNewDocNode(doc.get(), nullptr, XmlChars("Root"), nullptr);
    if (!root)
        return nullptr;
    xmlDocSetRootElement(doc.get(), root);
    if (Failed(AddAttribute(root, "xmlns:dt", kDataTypesUri)))
        return nullptr;
    return doc;
}

/// The project's name for an empty label: that of its file.
void FillLabel(CDSProjectData& project)
{
    string label;
    (void)project.get_Label(&label);
    if (label.empty()) {
        (void)project.get_DisplayName(&label);
        (void)project.put_Label(label);
    }
}

} // namespace

Status CDSFileService::SaveProject(string path, CDSProjectData* project)
{
    return Save(std::move(path), project, WriteFileInPlace);
}

Status CDSFileService::SaveProjectAtomic(string path, CDSProjectData* project)
{
    return Save(std::move(path), project, ReplaceFile);
}

Status CDSFileService::Save(string path, CDSProjectData* project, FileWriter write)
{
    constexpr string_view prefix = "file::";
    if (!project)
        return status::kNullPointer;
    if (path.starts_with(prefix))
        path.erase(0, prefix.size());
    if (path.empty())
        return status::kBadArgument;

    string directory;
    (void)Utils::GetDirectoryAndFileName(path, &directory, nullptr, nullptr);
    (void)project->put_ProjectDirectory(directory);
    (void)RemoveUnusedTemplates(project); // what stays is saved
    return WriteFile(path, project, write);
}

Status CDSFileService::SaveProjectAux(string path, CDSProjectData* project)
{
    return WriteFile(path, project, WriteFileInPlace);
}

Status CDSFileService::WriteFile(const string& path, CDSProjectData* project, FileWriter write)
{
    if (!project)
        return status::kNullPointer;
    const XmlDocPtr doc = MakeProjectDocument();
    if (!doc)
        return status::kNullPointer;
    string name;
    (void)Utils::GetDirectoryAndFileName(path, nullptr, &name, nullptr);
    (void)project->put_DisplayName(name);
    const XmlLoan loan(doc.get());
    const Status built = WriteProjectXML(AsNode(xmlDocGetRootElement(doc.get())), project);
    if (Failed(built))
        return built;
    FillLabel(*project); // shows in the file from the next save on

    string bytes;
    return SerializeXml(doc.get(), &bytes) ? write(path, bytes) : status::kUnwritableFile;
}

Status CDSFileService::WriteProjectXML(IXMLDOMNode* root, CDSProjectData* project)
{
    if (!root || !root->doc || !project)
        return status::kNullPointer;
    const Status saved = project->SaveXML(root);
    if (Failed(saved))
        return saved;
    xmlNode* productions = xmlNewDocNode(root->doc, nullptr, XmlChars("Productions"), nullptr);
    if (!productions || !xmlAddChild(root, productions))
        return status::kNullPointer;
    (void)PersistStoryboards(project, productions, true); // a bad one spoils no more than itself
    return status::kOk;
}

Status CDSFileService::LoadProject(const char* path, CDSProjectData* project)
{
    if (!path || !project)
        return status::kNullPointer;
    const XmlDocPtr doc = ReadXmlFile(path);
    if (!doc) {
        std::printf("LoadProject: could not parse file %s\n", path);
        return status::kUnreadableFile;
    }
    xmlNode* root = xmlDocGetRootElement(doc.get());
    if (!root) {
        std::printf("LoadProject: empty document");
        return status::kNullPointer;
    }
    if (ReadVersion(AsElement(root)) < kOldestFileVersion)
        return status::kOldVersion;
    const XmlGift gift(doc.get());
    (void)ReadProjectXML(AsNode(root), project); // the version has passed: what can be read is read
    return status::kOk;
}

unsigned long CDSFileService::ReadVersion(IXMLDOMElement* root)
{
    const xmlNode* project = FindChildElement(root, "Project");
    const xmlAttr* version = FindAttribute(project, "Version");
    if (!version)
        return 0;
    string store;
    return ParseULong(ResolvedText(version->children, store));
}

Status CDSFileService::ReadProjectXML(IXMLDOMNode* root, CDSProjectData* project)
{
    if (!project)
        return status::kNullPointer;
    const Status loaded = project->LoadXML(root);
    if (Failed(loaded))
        return loaded;
    xmlNode* productions = FindChildElement(root, "Productions");
    if (!productions)
        return status::kNothingDone;
    const Status read = PersistStoryboards(project, productions, false);
    return Failed(read) ? read : status::kNothingDone;
}
