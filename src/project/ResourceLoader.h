#pragma once

#include "core/Export.h"

#include <libxml/tree.h>

#include <map>
#include <memory>
#include <string>

/// The string tables of a theme.
///
/// A text, a font name or a height can stand in a project as a reference "stringRef:Table.Key" to
/// the file "ThemeStrings.xml" in the theme's "/Content/" folder. Below its root stand
/// "stringTable" elements with the table's "name", and in them "string" elements with the key as
/// "name" and the text inside. Elements without "name", and all others, are passed over.
///
/// What a file holds replaces the tables of the same names, and leaves the others: a file that
/// fails leaves all.
class VANTREL_API CResourceLoader
{
public:
    /// Loads a string table file. Failures are reported on standard output and give false.
    ///
    /// The calling thread remembers the tables of the last file, by its path, size and times, so
    /// that asking for them again costs a look at the file's entry alone. Loaders share them.
    bool InitWithXmlFile(const char* path);

    /// Resolves a reference: true when `out` was set. The key is all that stands behind the first
    /// dot. A key that its table doesn't hold gives the empty text; false, and `out` untouched, for
    /// a table that isn't known or is empty and for a text that is no reference.
    bool ParseString(std::string text, std::string* out);

    /// The text that `ParseString` would give, or null. It lives until the loader takes in a file.
    const std::string* FindText(const std::string& text) const;

    /// Takes over the tables below a root element. False for null or a root without children, which
    /// is reported on standard output.
    bool LoadStringTable(_xmlNode* root);

    /// True when an element has an attribute "name", with its value in `out`.
    bool HasNameProp(_xmlNode* node, std::string* out);

    /// Adds the strings of a "stringTable" element; a later key replaces an earlier one. False for
    /// null.
    bool LoadStrings(_xmlNode* table, std::map<std::string, std::string>& strings);

    /// The first text of a "string" element that is more than a line feed in apostrophes,
    /// untrimmed; empty when there is none.
    std::string GetTextValue(_xmlNode* node);

private:
    using Table = std::map<std::string, std::string>;
    using Tables = std::map<std::string, Table>;

    struct RememberedFile;

    void Adopt(const std::shared_ptr<const Tables>& tables);
    static RememberedFile& Remembered();

    std::shared_ptr<const Tables> m_tables;    ///< table name to table
    std::shared_ptr<const Tables> m_lastTaken; ///< what `m_tables` took in last
};
