#include "Sections.h"

using std::string;

namespace tool {

namespace {

/// What texts and overlays have in common. The corners go round from left-top by left-bottom.
template <class Element>
Json ElementFacts(Element& element)
{
    float x = 0.0F;
    float y = 0.0F;
    (void)element.GetPosition(&x, &y); // an element has one
    std::vector<FPoint> corners;
    (void)element.getBoundingBox(&corners); // none for a text without words
    Json facts{ { "id", element.GetID() }, { "position", PointFact(x, y) } };
    facts["corners"] = Json::array();
    for (const FPoint& corner : corners)
        facts["corners"].push_back(PointFact(corner.x, corner.y));
    facts["zOrder"] = Ask<long>(element, &Element::get_ZOrder);
    return facts;
}

Json Facts(CDSMenuText& text)
{
    using T = CDSMenuText;
    Json facts = ElementFacts(text);
    facts["tag"] = AskFlags(text, &T::get_Tag, FormatTextTag);
    facts["words"] = Ask<string>(text, &T::getString);
    facts["font"] = Ask<string>(text, &T::get_Font);
    long height = 0;
    facts["height"] = text.get_Height(&height) == vantrel::status::kOk ? Json(height) : Json();
    facts["colour"] = ColourFact(Ask<unsigned long>(text, &T::GetColor));
    facts["handle"] = AskEnum<TextHandles>(text, &T::get_Handle);
    facts["highlight"] = AskEnum<TextHighlight>(text, &T::get_Highlight);
    return facts;
}

Json Facts(CDSMenuOverlay& overlay)
{
    using O = CDSMenuOverlay;
    Json facts = ElementFacts(overlay);
    facts["tag"] = AskFlags(overlay, &O::get_Tag, FormatOverlayTag);
    facts["label"] = Ask<string>(overlay, &O::get_Label);
    SourceTypes type{};
    long id = 0;
    (void)overlay.GetSourceType(&type, &id);
    facts["sourceType"] = EnumFact(FormatEnum(type));
    facts["sourceID"] = id;
    facts["source"] = Ask<string>(overlay, &O::getSource); // as in the file, without the folder
    facts["alphaMask"] = Ask<string>(overlay, &O::getAlphaMask);
    facts["highlight"] = AskEnum<OverlayHighlight>(overlay, &O::get_Highlight);
    return facts;
}

string CornerText(const Json& corners)
{
    std::vector<string> texts;
    for (const Json& corner : corners)
        texts.push_back(PointText(corner));
    return List(texts);
}

string HeightText(const Json& height)
{
    return height.is_null() ? "of no one height" : height.dump();
}

string TextText(const Json& text)
{
    return '"' + string(text["words"]) + "\", " +
           List({ string(text["font"]) + ' ' + HeightText(text["height"]), text["colour"],
                  NameOf(text["handle"]) + " at " + PointText(text["position"]) });
}

string OverlayText(const Json& overlay)
{
    const string type = NameOf(overlay["sourceType"]);
    const Json& id = overlay["sourceID"];
    return List({ NamesOf(overlay["tag"]), overlay["label"],
                  id == 0 ? type : type + ' ' + id.dump(), overlay["source"] });
}

} // namespace

Json TextFacts(CProjectNode* elements)
{
    return EachChild<CDSMenuText>(elements, [](CDSMenuText& text) { return Facts(text); });
}

Json OverlayFacts(CProjectNode* elements)
{
    return EachChild<CDSMenuOverlay>(elements,
                                     [](CDSMenuOverlay& overlay) { return Facts(overlay); });
}

void ShowElements(Page& page, std::size_t depth, const Json& parent)
{
    for (const Json& text : parent["texts"]) {
        page.Nested(depth, Numbered("Text", text["id"].dump()), TextText(text));
        page.Nested(depth + 1, "Corners", CornerText(text["corners"]));
    }
    for (const Json& overlay : parent["overlays"]) {
        page.Nested(depth, Numbered("Overlay", overlay["id"].dump()), OverlayText(overlay));
        page.Nested(depth + 1, "Corners", CornerText(overlay["corners"]));
    }
}

} // namespace tool
