#include "Sections.h"

using std::string;

namespace tool {

namespace {

Json Facts(CDSDataFile& file)
{
    using F = CDSDataFile;
    return { { "id", Ask<long>(file, &F::get_ID) },
             { "sourcePath", Ask<string>(file, &F::get_SourcePath) },
             { "destPath", Ask<string>(file, &F::get_DestPath) },
             { "tag", Ask<unsigned long>(file, &F::get_Tag) } };
}

} // namespace

Json DataFileFacts(CProjectNode* list)
{
    return EachChild<CDSDataFile>(list, Facts);
}

void ShowDataFiles(Page& page, const Json& files)
{
    if (files.empty())
        return;
    page.Heading("Data files");
    std::vector<std::vector<string>> rows;
    for (const Json& file : files)
        rows.push_back({ file["id"].dump(), file["sourcePath"], file["destPath"] });
    page.Table(rows);
}

} // namespace tool
