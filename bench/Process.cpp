#include "Process.h"

#include <cstdio>
#include <cstdlib>
#include <sys/wait.h>
#include <unistd.h>

using std::string;

namespace bench {

namespace {

[[noreturn]] void Fail(const char* what)
{
    std::perror(what);
    std::exit(1);
}

[[noreturn]] void BecomeSelf(const std::vector<string>& arguments, int out)
{
    std::vector<char*> texts;
    string self = "file_bench";
    texts.push_back(self.data());
    for (const string& argument : arguments)
        texts.push_back(const_cast<char*>(argument.c_str())); // execv changes none of them
    texts.push_back(nullptr);
    if (::dup2(out, STDOUT_FILENO) >= 0)
        ::execv("/proc/self/exe", texts.data());
    ::_exit(127);
}

string ReadAll(int fd)
{
    string text;
    char buffer[256];
    for (ssize_t size = 0; (size = ::read(fd, buffer, sizeof buffer)) > 0;)
        text.append(buffer, static_cast<std::size_t>(size));
    return text;
}

} // namespace

string OutputOfSelf(const std::vector<string>& arguments)
{
    int ends[2];
    if (::pipe(ends) != 0)
        Fail("file_bench: pipe");
    const pid_t child = ::fork();
    if (child < 0)
        Fail("file_bench: fork");
    if (child == 0)
        BecomeSelf(arguments, ends[1]);
    ::close(ends[1]);
    string text = ReadAll(ends[0]);
    ::close(ends[0]);
    int result = 0;
    if (::waitpid(child, &result, 0) != child || result != 0) {
        std::fprintf(stderr, "file_bench: a measurement failed\n");
        std::exit(1);
    }
    return text;
}

} // namespace bench
