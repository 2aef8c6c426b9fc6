#pragma once

#include "xml/DsXml.h"
#include "xml/XmlPtr.h"
#include "xml/XmlValue.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <iterator>
#include <string>
#include <string_view>

/// A document parsed from text, without options, as a file is.
class XmlText
{
public:
    explicit XmlText(std::string_view text)
        : m_doc(xmlReadMemory(text.data(), static_cast<int>(text.size()), nullptr, nullptr, 0))
    {
        if (!m_doc)
            ADD_FAILURE() << "not well formed: " << text;
    }

    _xmlNode* root() const { return m_doc ? xmlDocGetRootElement(m_doc.get()) : nullptr; }
    xmlDoc* doc() const { return m_doc.get(); }

private:
    vantrel::XmlDocPtr m_doc;
};

/// A new document with an empty root element, to write into.
class EmptyXml
{
public:
    explicit EmptyXml(const char* rootName = "Root") : m_doc(xmlNewDoc(vantrel::XmlChars("1.0")))
    {
        xmlDocSetRootElement(m_doc.get(), xmlNewNode(nullptr, vantrel::XmlChars(rootName)));
    }

    _xmlNode* root() const { return xmlDocGetRootElement(m_doc.get()); }
    xmlDoc* doc() const { return m_doc.get(); }

private:
    vantrel::XmlDocPtr m_doc;
};

/// Keeps libxml2's own error messages off the test's output.
class SilentXml
{
public:
    SilentXml() { xmlSetGenericErrorFunc(nullptr, Ignore); }
    SilentXml(const SilentXml&) = delete;
    SilentXml& operator=(const SilentXml&) = delete;
    ~SilentXml() { xmlSetGenericErrorFunc(nullptr, nullptr); }

private:
    static void Ignore(void*, const char*, ...) {}
};

/// An element with all below it as text on one line, as it stands in a UTF-8 file.
inline std::string TextOf(_xmlNode* node)
{
    xmlBuffer* buffer = xmlBufferCreate();
    const xmlChar* encoding = node->doc ? node->doc->encoding : nullptr;
    if (node->doc)
        node->doc->encoding = vantrel::XmlChars("UTF-8");
    xmlNodeDump(buffer, node->doc, node, 0, 0);
    if (node->doc)
        node->doc->encoding = encoding;
    std::string text = vantrel::Chars(xmlBufferContent(buffer));
    xmlBufferFree(buffer);
    return text;
}

/// The names of an element's child elements, in order.
inline std::string ChildNames(const _xmlNode* parent)
{
    std::string names;
    for (const _xmlNode* child : vantrel::ChildElements(parent))
        names.append(names.empty() ? "" : " ").append(vantrel::NameOf(child));
    return names;
}

/// A folder of its own for a test's files, gone afterwards.
class ScratchFolder
{
public:
    ScratchFolder()
    {
        std::string name =
            (std::filesystem::temp_directory_path() / "vantrel-test-XXXXXX").string();
        if (!mkdtemp(name.data()))
            ADD_FAILURE() << "can't make " << name;
        m_path = name;
    }
    ScratchFolder(const ScratchFolder&) = delete;
    ScratchFolder& operator=(const ScratchFolder&) = delete;
    ~ScratchFolder()
    {
        std::error_code ignored;
        std::filesystem::remove_all(m_path, ignored);
    }

    std::string operator/(std::string_view name) const { return m_path + "/" + std::string(name); }
    const std::string& path() const { return m_path; }

private:
    std::string m_path;
};

inline std::string ReadFile(const std::string& path)
{
    std::ifstream file(path, std::ios::binary);
    return { std::istreambuf_iterator<char>(file), std::istreambuf_iterator<char>() };
}

inline void WriteFile(const std::string& path, std::string_view bytes)
{
    std::ofstream(path, std::ios::binary).write(bytes.data(), static_cast<long>(bytes.size()));
}
