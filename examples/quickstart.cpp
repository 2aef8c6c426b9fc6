#include <Vantrel.h>

#include <cstdio>

int main(int argc, char** argv)
{
    CDSProjectData project;
    CDSFileService service;
    if (argc != 3 || vantrel::Failed(service.LoadProject(argv[1], &project)))
        return 1;

    std::string label;
    project.get_Label(&label);
    std::printf("%s\n", label.c_str());

    CProjectNode* titles = project.FindChildByType(eNodeTitles, "");
    for (int i = 0; i < titles->GetNumChildren(); ++i) {
        static_cast<CDSTitle*>(titles->GetChild(i))->get_Label(&label);
        std::printf("%d. %s\n", i + 1, label.c_str());
    }

    project.put_Label(label + ", second edition");
    return vantrel::Failed(service.SaveProjectAtomic(argv[2], &project)) ? 1 : 0;
}
