#pragma once

#include "core/Export.h"
#include "core/Status.h"
#include "xml/DsXml.h"

#include <string>
#include <string_view>

class CDSMenu;
class CDSProjectData;
class CDSTitle;
class CQZBaseSBD;

/// Turns a file path and a project into a project on disk, and back.
///
/// Every path is a plain file path: spaces, '%', '#' and non-ASCII bytes mean themselves, a URL is
/// never fetched. The service keeps nothing between calls. A caller must not touch the project
/// during one.
class VANTREL_API CDSFileService
{
public:
    /// Saves a project over the file at `path`, in place; a "file::" in front of it is cut off.
    ///
    /// Takes templates that nothing uses out of the project (`RemoveUnusedTemplates`), and sets the
    /// project's directory and display name, and its label if that is empty; a save that fails leaves
    /// the project as it was. The new content is complete in memory and room for it reserved before the file is touched, so that a file that
    /// can't be opened and a full disk leave the old one as it was. Gives `status::kNullPointer` for a
    /// null project, `status::kBadArgument` for an empty path and `status::kUnwritableFile` when the
    /// file can't be opened, written or closed.
    vantrel::Status SaveProject(std::string path, CDSProjectData* project);

    /// The same, but through a new file that replaces the old one whole: at every moment there is the
    /// old content or the new. The mode is kept and a symbolic link followed; other hard links to the
    /// old file keep the old content.
    vantrel::Status SaveProjectAtomic(std::string path, CDSProjectData* project);

    /// The part of `SaveProject` that builds the document and writes the file. A null project gives
    /// `status::kNullPointer`.
    vantrel::Status SaveProjectAux(std::string path, CDSProjectData* project);

    /// Fills the root element of a new file. A null argument, or an element that belongs to no
    /// document, gives `status::kNullPointer`.
    vantrel::Status WriteProjectXML(IXMLDOMNode* root, CDSProjectData* project);

    /// Loads the file at `path` into `project`. Gives `status::kUnreadableFile`, with a message on
    /// standard output, for what is no XML file, `status::kNullPointer` for a null argument or a
    /// document without root, and `status::kOldVersion` below version 800; the project is then as it
    /// was. What is wrong in single elements spoils no more than those: the result is 0.
    vantrel::Status LoadProject(const char* path, CDSProjectData* project);

    /// The "Version" of the file's "Project" element, 0 if it has none.
    unsigned long ReadVersion(IXMLDOMElement* root);

    /// Reads the elements of a file and the storyboards into the project. Gives 1 when they were read.
    vantrel::Status ReadProjectXML(IXMLDOMNode* root, CDSProjectData* project);

    /// Takes out the template menus that no ordinary menu was made from, directly or through a chain
    /// of templates. A project without titles whose menus use no template keeps them all. Gives 0, a
    /// null project `status::kNullPointer`.
    vantrel::Status RemoveUnusedTemplates(CDSProjectData* project);

    /// @name Storyboards in the file
    /// "Productions" has one element for each title and ordinary menu with a storyboard, named after
    /// the node's ID. A native menu's storyboard comes from its template.
    /// @{
    /// Writes or reads the storyboards of the titles, then of the menus. A title gets a storyboard
    /// when there is an element for it. Nodes of one ID each get the whole of their element, but no
    /// more than 16 of them. What fails in one spoils no more than that one: the result is 0, and
    /// `status::kNullPointer` for a null argument.
    vantrel::Status PersistStoryboards(CDSProjectData* project, _xmlNode* productions, bool save);

    /// Writes or reads one storyboard as the child `name` of `productions`. Gives 0, and does nothing
    /// where there is no storyboard.
    vantrel::Status PersistProductionXML(_xmlNode* productions, CQZBaseSBD* storyboard,
                                         std::string name, bool save);

    /// The node's storyboard, or null.
    CQZBaseSBD* GetProductionObj(CDSTitle* title);
    CQZBaseSBD* GetProductionObj(CDSMenu* menu);

    /// The name of the element for a `CProjectNode`: "Title" or "Menu", and the ID with at least four
    /// digits.
    std::string GetProductionNodeName(void* node);
    /// @}

private:
    using FileWriter = vantrel::Status (*)(const std::string& path, std::string_view bytes);
    vantrel::Status Save(std::string path, CDSProjectData* project, FileWriter write);
    vantrel::Status WriteFile(const std::string& path, CDSProjectData& project, FileWriter write);
    void WriteStoryboards(CDSProjectData& project, _xmlNode* productions);
    void ReadStoryboards(CDSProjectData& project, _xmlNode* productions);
};
