#include "project/DSFileService.h"

#include "core/Number.h"
#include "core/PathUtils.h"
#include "core/Report.h"
#include "core/Version.h"
#include "disc/DSProjectData.h"
#include "xml/KeptXml.h"
#include "xml/XmlFile.h"
#include "xml/XmlPtr.h"
#include "xml/XmlValue.h"

#include <utility>
#include <vector>

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

/// What a save tells a project of its new place: taken back unless the save succeeds.
class NewPlace
{
public:
    explicit NewPlace(CDSProjectData& project) : m_project(project)
    {
        (void)project.get_ProjectDirectory(&m_formerDirectory);
        (void)project.get_DisplayName(&m_formerName);
    }
    NewPlace(const NewPlace&) = delete;
    NewPlace& operator=(const NewPlace&) = delete;
    ~NewPlace()
    {
        if (m_kept)
            return;
        (void)m_project.put_ProjectDirectory(std::move(m_formerDirectory));
        (void)m_project.put_DisplayName(std::move(m_formerName));
    }
    void Keep() { m_kept = true; }

private:
    CDSProjectData& m_project;
    string m_formerDirectory;
    string m_formerName;
    bool m_kept = false;
};

/// The menus of a project as they are before a save takes templates out: put back unless it succeeds.
class FormerMenus
{
public:
    explicit FormerMenus(CDSProjectData& project) : m_list(project.FindChildByType(eNodeMenus, ""))
    {
        for (int i = 0; m_list && i < m_list->GetNumChildren(); ++i)
            m_menus.push_back(m_list->GetChild(i));
    }
    FormerMenus(const FormerMenus&) = delete;
    FormerMenus& operator=(const FormerMenus&) = delete;
    ~FormerMenus()
    {
        for (std::size_t i = 0; i < m_menus.size(); ++i) {
            if (m_menus[i]->GetParent() != m_list)
                m_list->InsertChild(m_menus[i], static_cast<int>(i), false);
        }
    }
    void Forget() { m_menus.clear(); }

private:
    CProjectNode* m_list;
    std::vector<CProjectNode*> m_menus;
};

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

    NewPlace place(*project);
    string directory;
    (void)Utils::GetDirectoryAndFileName(path, &directory, nullptr, nullptr);
    (void)project->put_ProjectDirectory(directory);
    FormerMenus menus(*project);
    (void)RemoveUnusedTemplates(project); // what stays is saved
    const Status written = WriteFile(path, *project, write);
    if (Failed(written))
        return written;
    place.Keep();
    menus.Forget();
    return written;
}

Status CDSFileService::SaveProjectAux(string path, CDSProjectData* project)
{
    return project ? WriteFile(path, *project, WriteFileInPlace) : status::kNullPointer;
}

Status CDSFileService::WriteFile(const string& path, CDSProjectData& project, FileWriter write)
{
    const XmlDocPtr doc = MakeProjectDocument();
    if (!doc)
        return status::kNullPointer;
    NewPlace place(project);
    string name;
    (void)Utils::GetDirectoryAndFileName(path, nullptr, &name, nullptr);
    (void)project.put_DisplayName(name);
    const XmlLoan loan(doc.get());
    const Status built = WriteProjectXML(AsNode(xmlDocGetRootElement(doc.get())), &project);
    if (Failed(built))
        return built;
    string bytes;
    if (!SerializeXml(doc.get(), &bytes))
        return status::kUnwritableFile;
    const Status written = write(path, bytes);
    if (Failed(written))
        return written;
    place.Keep();
    FillLabel(project); // shows in the file from the next save on
    return written;
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
        Report("LoadProject: could not parse file ", path, "\n");
        return status::kUnreadableFile;
    }
    xmlNode* root = xmlDocGetRootElement(doc.get());
    if (!root) {
        Report("LoadProject: empty document");
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
