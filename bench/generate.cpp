// vantrel-generate: writes a made-up project file of a given size.

#include "ProjectGenerator.h"

#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <string>

int main(int argc, char** argv)
{
    const long size = argc == 3 ? std::atol(argv[1]) : 0;
    if (size <= 0) {
        std::fprintf(stderr, "Usage: vantrel-generate SIZE FILE\n"
                             "Writes a project file of about SIZE bytes.\n");
        return 2;
    }
    const std::filesystem::path path = argv[2];
    std::ofstream file(path, std::ios::binary);
    file << bench::GenerateProject(static_cast<std::size_t>(size), path.stem());
    file.close();
    if (!file) {
        std::fprintf(stderr, "vantrel-generate: can't write \"%s\"\n", argv[2]);
        return 1;
    }
    return 0;
}
