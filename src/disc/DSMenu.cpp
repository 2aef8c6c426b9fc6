#include "disc/DSMenu.h"

#include "core/PathUtils.h"
#include "core/Property.h"
#include "disc/ChildPositions.h"
#include "disc/DSCommandList.h"
#include "disc/DSEncodingParams.h"
#include "disc/DSMenuButton.h"
#include "disc/DSMenuColours.h"
#include "disc/DSMenuElementList.h"
#include "disc/DSProjectData.h"
#include "disc/MenuTemplates.h"
#include "project/NodeForm.h"
#include "storyboard/QZBaseSBD.h"
#include "storyboard/SbdUtils.h"

using std::string;
using std::string_view;
using namespace vantrel;
using namespace vantrel::attribute;

long g_MenuInstanceID = 0;

namespace {

constexpr const char* kTemplate = ".pvtx"; // in the name of a theme's template

/// "0x" and the low 32 bits; a text of another form reads as all bits.
template <auto Field>
constexpr AttributeRow<CDSMenu> Hex32(const char* name)
{
    return { name,
             [](const CDSMenu& menu, string& text) {
                 text += FormatString("0x%08X", static_cast<long>(menu.*Field));
             },
             [](CDSMenu& menu, string_view text) {
                 menu.*Field = static_cast<unsigned long>(ReadHex(string(text)));
             } };
}

/// A path, held in the form of the machine at hand. `InContent` remembers that the file had it below
/// "%CONTENT%", so that a save says so again.
template <auto Field, auto InContent>
constexpr AttributeRow<CDSMenu> FilePath(const char* name)
{
    return { name,
             [](const CDSMenu& menu, string& text) {
                 text = menu.*Field;
                 if (menu.*InContent)
                     text.insert(0, "%CONTENT%");
                 else
                     (void)Utils::UnresolveFilePath(&text, menu.DocumentPath()); // others stay
             },
             [](CDSMenu& menu, string_view text) {
                 menu.*Field = text;
                 menu.*InContent = HasContentToken(text);
                 (void)Utils::ResolveFilePath(&(menu.*Field)); // has no failure to tell
             } };
}

} // namespace

// The attributes of "Menu".
struct VANTREL_INTERNAL CDSMenu::Form
{
    static constexpr auto native = [](const CDSMenu& menu) { return menu.m_native; };
    static constexpr auto rows = Rows<CDSMenu>(
        NodeID<CDSMenu>("ID"), Hex32<&CDSMenu::m_btnLayout>("btnLayout").WhenAbsent(""),
        Flags<&CDSMenu::m_tag, FormatMenuTag>("tag"),
        Flags<&CDSMenu::m_flags, FormatMenuFlag>("flag"),
        Decimal<&CDSMenu::m_templateID>("templateID"), Decimal<&CDSMenu::m_bkgndID>("backgroundID"),
        Bool<&CDSMenu::m_native>("native").WhenNativeAsked("1"),
        Decimal<&CDSMenu::m_defaultButton>("defaultButton"), // a file may name what put_ refuses
        Text<&CDSMenu::m_label>("label"),
        Decimal<&CDSMenu::m_contentCount>("contentCount").ReadOnly(),
        FilePath<&CDSMenu::m_background, &CDSMenu::m_isBackgroundInContent>("background")
            .If(native),
        FilePath<&CDSMenu::m_audio, &CDSMenu::m_isAudioInContent>("audio").If(native),
        Real<&CDSMenu::m_duration>("duration").If(native));
    static constexpr FixedChild children[] = {
        Fixed<CPaletteNode>(eNodePalette),
        Fixed<CButtonSchemeNode>(eNodeButtonScheme, "ButtonScheme1"),
        Fixed<CButtonSchemeNode>(eNodeButtonScheme, "ButtonScheme2"),
        Fixed<CButtonSchemeNode>(eNodeButtonScheme, "ButtonScheme3"),
        Fixed<CSPUColourNode>(eNodeSPUColours),
        Fixed<CLayoutRectNode>(eNodeLayoutRect),
        Fixed<CDSCommandList>(eNodeCommands),
        Fixed<CDSEncodingParams>(eNodeEncoding),
        Fixed<CDSMenuElementList>(eNodeElements),
    };

    static void Finish(CDSMenu& menu)
    {
        if (menu.m_native)
            (void)menu.LoadBkngProdFromPVTX(menu.m_background); // without a template it stays empty
    }
};

CDSMenu::CDSMenu() : FormedNode(eNodeMenu, kFormOf<CDSMenu, Form>)
{
    (void)FinalConstruct(); // can be asked for again
}

CDSMenu::~CDSMenu() = default;

// clang-format off
bool CDSMenu::IsNative() const { return m_native; }
Status CDSMenu::get_ID(long* out) const { return Give(out, GetID()); }
Status CDSMenu::get_Tag(unsigned long* out) const { return Give(out, m_tag); }
Status CDSMenu::put_Tag(unsigned long value) { return Take(m_tag, value); }
Status CDSMenu::get_Flags(unsigned long* out) const { return Give(out, m_flags); }
Status CDSMenu::put_Flags(unsigned long value) { return Take(m_flags, value); }
Status CDSMenu::get_Label(string* out) const { return Give(out, m_label); }
Status CDSMenu::put_Label(string value) { return Take(m_label, std::move(value)); }
Status CDSMenu::get_TemplateID(long* out) const { return Give(out, m_templateID); }
Status CDSMenu::put_TemplateID(long value) { return Take(m_templateID, value); }
Status CDSMenu::put_ButtonLayout(unsigned long packed) { return Take(m_btnLayout, packed); }
Status CDSMenu::get_DefaultButton(long* out) const { return Give(out, m_defaultButton); }
Status CDSMenu::get_IsNative(bool* out) const { return Give(out, m_native); }
Status CDSMenu::get_BkgndID(long* out) const { return Give(out, m_bkgndID); }
Status CDSMenu::get_Audio(string* out) const { return Give(out, m_audio); }
Status CDSMenu::put_Duration(double value) { return Take(m_duration, value); }
Status CDSMenu::GetContentCount(long* out) const { return Give(out, m_contentCount); }
// clang-format on

Status CDSMenu::FinalConstruct()
{
    const Status made = MakeFixedChildren(true);
    return Failed(made) || m_native ? made : CreateProduction();
}

Status CDSMenu::FinalRelease()
{
    return ReleaseProduction();
}

Status CDSMenu::CreateProduction()
{
    if (m_production)
        return status::kNothingDone;
    return Guarded([this] {
        auto production = std::make_unique<CQZBaseSBD>();
        (void)production->NewProduction(); // a fresh storyboard has nothing to fail on
        m_production = std::move(production);
        return status::kOk;
    });
}

Status CDSMenu::ReleaseProduction()
{
    if (!m_production)
        return status::kNothingDone;
    m_production.reset();
    return status::kOk;
}

Status CDSMenu::GetProduction(CQZBaseSBD** out)
{
    if (!out)
        return status::kNullPointer;
    *out = m_production.get();
    return m_production ? status::kOk : status::kNothingDone;
}

Status CDSMenu::LoadBkngProdFromPVTX(string file)
{
    if (file.empty() || !m_production)
        return status::kOk;
    string path = DocumentPath();
    (void)Utils::GetContentPath(&path); // never says anything
    path += file;

    const CProjectNode* list = GetParent();
    const auto* project = dynamic_cast<CDSProjectData*>(list ? list->GetParent() : nullptr);
    MenuTemplates* shared = project ? project->m_templates.get() : nullptr;
    const XmlDocPtr doc = shared ? shared->Copy(path) : ReadTemplate(path);
    m_templateFile = Utils::HasString(file, kTemplate) ? path : ""; // else it is a picture
    m_isTemplateMissing = !doc;
    // Without a document there is no root, and the storyboard stays as it is.
    (void)m_production->LoadProductionFromXML(xmlDocGetRootElement(doc.get()));
    return status::kOk;
}

Status CDSMenu::GetTemplateFile(string* path, bool* missing) const
{
    if (!path || !missing)
        return status::kNullPointer;
    if (m_templateFile.empty())
        return status::kNothingDone;
    *path = m_templateFile;
    *missing = m_isTemplateMissing;
    return status::kOk;
}

Status CDSMenu::get_ButtonLayout(CDSLayout* out) const
{
    return Give(out, CDSLayout(m_btnLayout));
}

Status CDSMenu::get_LayoutRect(FloatRect* out)
{
    const auto* rect = dynamic_cast<CLayoutRectNode*>(GetChild(MenuChild::LayoutRect));
    return rect ? rect->GetLayoutRect(out) : status::kNullPointer;
}

Status CDSMenu::put_LayoutRect(FloatRect* in)
{
    auto* rect = dynamic_cast<CLayoutRectNode*>(GetChild(MenuChild::LayoutRect));
    return rect ? rect->SetLayoutRect(in) : status::kNullPointer;
}

Status CDSMenu::put_DefaultButton(long id)
{
    if (id != 0) {
        CProjectNode* elements = GetChild(MenuChild::Elements);
        if (!elements)
            return status::kNullPointer;
        const CProjectNode* button =
            elements->FindChildByID(static_cast<unsigned long>(id), nullptr);
        if (!button || button->GetType() != eNodeButton)
            return status::kNotAButton;
    }
    m_defaultButton = id;
    return status::kOk;
}

Status CDSMenu::put_BkgndID(long value)
{
    m_background.clear();
    m_isBackgroundInContent = false;
    return Take(m_bkgndID, value);
}

Status CDSMenu::get_Background(string* out) const
{
    if (!out)
        return status::kNullPointer;
    return Utils::HasString(m_background, kTemplate) ? getSbdBkgndVideo(m_production.get(), out)
                                                     : Give(out, m_background);
}

Status CDSMenu::put_Background(string value)
{
    if (value.empty())
        return status::kNullPointer;
    if (m_native) {
        m_background = std::move(value);
        m_isBackgroundInContent = false;
        m_bkgndID = 0;
    } else {
        (void)setSbdBkgndVideo(m_production.get(), value, false); // told by the next get_
    }
    return status::kOk;
}

Status CDSMenu::get_Duration(double* out) const
{
    const double played = getSbdDuration(m_production.get());
    const bool isStored = m_native || m_bkgndID > 0 || !(played > 0.0);
    return Give(out, isStored ? m_duration : played);
}

Status CDSMenu::SetPalette(long)
{
    return status::kOk;
}

Status CDSMenu::get_ButtonCount(long* out)
{
    CProjectNode* elements = GetChild(MenuChild::Elements);
    long count = 0;
    for (int i = 0; elements && i < elements->GetNumChildren(); ++i)
        count += elements->GetChild(i)->GetType() == eNodeButton;
    return Give(out, count);
}

Status CDSMenu::GetButton(long index, CDSMenuButton** out)
{
    if (!out)
        return status::kNullPointer;
    CProjectNode* elements = index > 0 ? GetChild(MenuChild::Elements) : nullptr;
    for (int i = 0; elements && i < elements->GetNumChildren(); ++i) {
        CProjectNode* element = elements->GetChild(i);
        if (element->GetType() == eNodeButton && --index == 0) {
            *out = dynamic_cast<CDSMenuButton*>(element);
            return status::kOk;
        }
    }
    return status::kNothingDone;
}
