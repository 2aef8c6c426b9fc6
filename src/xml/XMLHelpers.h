#pragma once

#include "core/Export.h"
#include "core/Status.h"
#include "core/Types.h"

#include <libxml/tree.h>

#include <map>
#include <string>

template <class T>
class XMLHelpers;

/// Scalars as typed elements: the form of every value in the storyboard half of a project file.
///
/// A value is one child element of a given parent. Its attribute "dt:dt" names the type and its
/// text holds the value; the prefix "dt" is declared once, on the root of the file. A further
/// attribute "Name" is written when the `name` argument isn't empty, and selects on reading.
///
/// Numbers are decimal text with "." and at most six significant digits for floating point. Strings
/// are made fit for a file: what XML has no room for becomes U+FFFD.
///
/// A null parent gives `status::kBadArgument` everywhere, and changes nothing. A `Load` that finds
/// no element gives `status::kNothingDone` and leaves its output alone; one that finds an element
/// without text stores 0, 0.0, false or the empty string. No `Load` looks at "dt:dt". The first of
/// several elements of a name is read, and only when its first child is a text has it a value.
///
/// Elements that are written belong to the parent's document; so do those that are found.
template <>
class VANTREL_API XMLHelpers<void>
{
public:
    using Attributes = std::map<std::string, std::string>; ///< attribute name to text

    /// @name The general pair
    /// @{
    /// Adds an element. An empty `type` makes a bare container, without text whatever `value` says.
    /// `out` may be null, else it receives the element.
    static vantrel::Status SaveNode(_xmlNode* parent, std::string node, std::string name,
                                    std::string type, std::string value, _xmlNode** out);
    /// `node` may be a path of names, separated by "/". `value` and `out` may be null; an element
    /// without a text leaves `value` alone.
    static vantrel::Status LoadNode(_xmlNode* parent, std::string node, std::string name,
                                    std::string* value, _xmlNode** out);
    /// @}
    /// @name Elements with attributes
    /// @{
    /// Adds an element without text that has these attributes.
    static vantrel::Status SaveNode(_xmlNode* parent, std::string node, Attributes& attributes,
                                    _xmlNode** out);
    /// Finds an element and fills the map as `LoadAttributes` does.
    static vantrel::Status LoadNode(_xmlNode* parent, std::string node, Attributes& attributes,
                                    _xmlNode** out);
    /// Adds each entry as an attribute. A key that can't name one gives `status::kBadArgument`,
    /// before anything is added.
    static vantrel::Status SaveAttributes(_xmlNode* node, Attributes& attributes);
    /// Gives each key of the map the text of that attribute, and the empty string to those that the
    /// element lacks.
    static vantrel::Status LoadAttributes(_xmlNode* node, Attributes& attributes);
    /// @}
    /// @name Writing scalars
    /// @{
    static vantrel::Status SaveLongNode(_xmlNode* parent, std::string node, std::string name,
                                        long value);
    static vantrel::Status SaveULongNode(_xmlNode* parent, std::string node, std::string name,
                                         unsigned long value);
    static vantrel::Status SaveDoubleNode(_xmlNode* parent, std::string node, std::string name,
                                          double value);
    static vantrel::Status SaveFloatNode(_xmlNode* parent, std::string node, std::string name,
                                         float value);
    static vantrel::Status SaveBoolNode(_xmlNode* parent, std::string node, std::string name,
                                        bool value);
    static vantrel::Status SaveStringNode(_xmlNode* parent, std::string node, std::string name,
                                          std::string value);
    static vantrel::Status SaveInt2Node(_xmlNode* parent, std::string node, std::string name,
                                        short value);
    static vantrel::Status SaveUInt2Node(_xmlNode* parent, std::string node, std::string name,
                                         unsigned short value);
    /// "#" and six or more hexadecimal digits.
    static vantrel::Status SaveCOLORREFNode(_xmlNode* parent, std::string node, std::string name,
                                            unsigned long value);
    static vantrel::Status SaveUUIDNode(_xmlNode* parent, std::string node, std::string name,
                                        _GUID value);
    /// Two hexadecimal digits a byte.
    static vantrel::Status SaveBlobNode(_xmlNode* parent, std::string node, std::string name,
                                        char* data, unsigned long size);
    /// @}
    /// @name Reading scalars
    /// A null output gives `status::kBadArgument`.
    /// @{
    static vantrel::Status LoadLongNode(_xmlNode* parent, std::string node, std::string name,
                                        long* value);
    static vantrel::Status LoadULongNode(_xmlNode* parent, std::string node, std::string name,
                                         unsigned long* value);
    static vantrel::Status LoadDoubleNode(_xmlNode* parent, std::string node, std::string name,
                                          double* value);
    static vantrel::Status LoadFloatNode(_xmlNode* parent, std::string node, std::string name,
                                         float& value);
    static vantrel::Status LoadBoolNode(_xmlNode* parent, std::string node, std::string name,
                                        bool* value);
    static vantrel::Status LoadStringNode(_xmlNode* parent, std::string node, std::string name,
                                          std::string* value);
    static vantrel::Status LoadInt2Node(_xmlNode* parent, std::string node, std::string name,
                                        short* value);
    static vantrel::Status LoadUInt2Node(_xmlNode* parent, std::string node, std::string name,
                                         unsigned short& value);
    /// A text without "#" in front leaves `value` alone.
    static vantrel::Status LoadCOLORREFNode(_xmlNode* parent, std::string node, std::string name,
                                            unsigned long& value);
    /// A text that is no identifier gives `status::kBadArgument` and leaves `value` alone.
    static vantrel::Status LoadUUIDNode(_xmlNode* parent, std::string node, std::string name,
                                        _GUID& value);
    /// Fills at most `size` bytes of `data`, and `size` receives their number. A text that isn't
    /// made of pairs of digits gives `status::kBadArgument` and touches neither.
    static vantrel::Status LoadBlobNode(_xmlNode* parent, std::string node, std::string name,
                                        char* data, unsigned long& size);
    /// @}
    /// @name Vectors
    /// @{
    /// Adds an element that always has "Name", with the Float children "x", "y" and "z".
    static vantrel::Status SaveD3DVECTOR3Node(_xmlNode* parent, std::string node, std::string name,
                                              D3DXVECTOR3* value);
    /// A missing element gives `status::kFailure`; a missing component is 0.0.
    static vantrel::Status LoadD3DVECTOR3Node(_xmlNode* parent, std::string node, std::string name,
                                              D3DXVECTOR3* value);
    /// @}
    /// @name Document and tree
    /// @{
    /// Adds a comment as the last child of `node`. A "--" in it is broken up.
    static vantrel::Status AppendComment(_xmlNode* node, std::string text);
    /// Makes a document whose root "Root" declares the prefix "dt", when `*out` is null; it is the
    /// caller's. A document that is there stays as it is. Null gives `status::kBadArgument`.
    static vantrel::Status CreateDocument(_xmlDoc** out);
    /// Takes out and releases all child elements of that name. Gives `status::kNothingDone` when
    /// there are none, and for an empty name.
    static vantrel::Status RemoveNode(_xmlNode* parent, std::string name);
    /// @}
};
