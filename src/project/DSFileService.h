#pragma once

#include "core/Export.h"
#include "core/Status.h"
#include "xml/DsXml.h"

#include <string>

class CDSProjectData;

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
    /// Sets the project's directory and display name, and its label if that is empty. The new content
    /// is complete in memory and room for it reserved before the file is touched, so that a file that
    /// can't be opened and a full disk leave the old one as it was. Gives `status::kNullPointer` for a
    /// null project, `status::kBadArgument` for an empty path and `status::kUnwritableFile` when the
    /// file can't be opened, written or closed.
    Status SaveProject(std::string path, CDSProjectData* project);

    /// The same, but through a new file that replaces the old one whole: at every moment there is the
    /// old content or the new. The mode is kept and a symbolic link followed; other hard links to the
    /// old file keep the old content.
    Status SaveProjectAtomic(std::string path, CDSProjectData* project);

    /// The part of `SaveProject` that builds the document and writes the file. A null project gives
    /// `status::kNullPointer`.
    Status SaveProjectAux(std::string path, CDSProjectData* project);

    /// Fills the root element of a new file. A null argument, or an element that belongs to no
    /// document, gives `status::kNullPointer`.
    Status WriteProjectXML(IXMLDOMNode* root, CDSProjectData* project);

    /// Loads the file at `path` into `project`. Gives `status::kUnreadableFile`, with a message on
    /// standard output, for what is no XML file, `status::kNullPointer` for a null argument or a
    /// document without root, and `status::kOldVersion` below version 800; the project is then as it
    /// was. What is wrong in single elements spoils no more than those: the result is 0.
    Status LoadProject(const char* path, CDSProjectData* project);

    /// The "Version" of the file's "Project" element, 0 if it has none.
    unsigned long ReadVersion(IXMLDOMElement* root);

    /// Reads the elements of a file into the project. Gives 1 when they were read.
    Status ReadProjectXML(IXMLDOMNode* root, CDSProjectData* project);

private:
    using FileWriter = Status (*)(const std::string& path, std::string_view bytes);
    Status Save(std::string path, CDSProjectData* project, FileWriter write);
    Status WriteFile(const std::string& path, CDSProjectData* project, FileWriter write);
};
