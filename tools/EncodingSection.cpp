#include "Sections.h"

using std::string;

namespace tool {

namespace {

string Rate(const Json& bitsPerSecond)
{
    return std::to_string(long(bitsPerSecond) / 1000) + " kbit/s";
}

string VideoText(const Json& encoding)
{
    return List({ NameOf(encoding["videoFormat"]), NameOf(encoding["videoResolution"]),
                  NameOf(encoding["aspectRatio"]), Rate(encoding["videoBitrate"]),
                  encoding["VBREncoding"] ? "variable rate" : "constant rate",
                  encoding["twoPassEncoding"] ? "two passes" : "" });
}

string AudioText(const Json& encoding)
{
    return List({ NameOf(encoding["audioFormat"]), Rate(encoding["audioBitrate"]),
                  Count(encoding["audioChannels"], "channel") });
}

} // namespace

Json EncodingFacts(CProjectNode* node)
{
    auto* encoding = dynamic_cast<CDSEncodingParams*>(node);
    if (!encoding)
        return nullptr;
    using E = CDSEncodingParams;
    Json facts;
    facts["syncToProject"] = Ask<bool>(*encoding, &E::get_SyncToProject);
    facts["videoFormat"] = AskEnum<VideoFormat>(*encoding, &E::get_VideoFormat);
    facts["videoResolution"] = AskEnum<VideoResolution>(*encoding, &E::get_VideoResolution);
    facts["aspectRatio"] = AskEnum<AspectRatio>(*encoding, &E::get_AspectRatio);
    facts["videoBitrate"] = Ask<long>(*encoding, &E::get_VideoBitrate);
    facts["VBREncoding"] = Ask<bool>(*encoding, &E::get_VBREncoding);
    facts["twoPassEncoding"] = Ask<bool>(*encoding, &E::get_TwoPassEncoding);
    facts["audioFormat"] = AskEnum<AudioFormat>(*encoding, &E::get_AudioFormat);
    facts["audioBitrate"] = Ask<long>(*encoding, &E::get_AudioBitrate);
    facts["audioChannels"] = Ask<long>(*encoding, &E::get_AudioChannels);
    facts["wideDisplayMode"] = AskEnum<WideDisplayMode>(*encoding, &E::get_WideDisplayMode);
    facts["subpictureFormat"] = AskEnum<SubpictureFormat>(*encoding, &E::get_SubpictureFormat);
    return facts;
}

void ShowEncoding(Page& page, const Json& encoding)
{
    if (encoding.is_null())
        return;
    page.Field("Video", VideoText(encoding));
    page.Field("Audio", AudioText(encoding));
    page.Field("Display", List({ NameOf(encoding["wideDisplayMode"]),
                                 "subpictures " + NameOf(encoding["subpictureFormat"]) }));
}

string EncodingText(const Json& encoding)
{
    if (encoding.is_null())
        return {};
    if (encoding["syncToProject"])
        return "encoded as the project";
    return VideoText(encoding) + "; " + AudioText(encoding);
}

} // namespace tool
