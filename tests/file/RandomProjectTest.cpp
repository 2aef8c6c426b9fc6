#include "support/RandomProject.h"

#include "project/DSFileService.h"
#include "support/NodeFixture.h"

using std::string;
using namespace vantrel;

/// Whatever an application makes in memory, its file is a fixed point from the first save on.
TEST(RandomProjects, AreTheSameByteForByteOnceSaved)
{
    const ScratchFolder folder;
    const string path = folder / "a.xml";
    for (unsigned seed = 0; seed < 120; ++seed) {
        SCOPED_TRACE(seed);
        RandomProject made(seed);
        ASSERT_EQ(CDSFileService().SaveProject(path, &made.project), status::kOk);
        const string saved = ReadFile(path);
        CDSProjectData loaded;
        ASSERT_EQ(CDSFileService().LoadProject(path.c_str(), &loaded), status::kOk);
        ASSERT_EQ(CDSFileService().SaveProject(path, &loaded), status::kOk);
        ASSERT_EQ(ReadFile(path), saved);
        ASSERT_EQ(CDSFileService().SaveProject(path, &made.project), status::kOk);
        ASSERT_EQ(ReadFile(path), saved); // a save changes nothing of what is saved
    }
}
