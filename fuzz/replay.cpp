// Runs a fuzzer's function once over each file of some folders: what libFuzzer does, in builds that
// do not have it.
#include <algorithm>
#include <cstdio>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <string>
#include <vector>

extern "C" {
int LLVMFuzzerTestOneInput(const unsigned char *data, std::size_t size);

// A fuzzer need not have one.
__attribute__((weak)) int LLVMFuzzerInitialize(int *argc, char ***argv);
}

namespace {

std::vector<std::filesystem::path> filesOf(const char *folder)
{
    std::vector<std::filesystem::path> files;
    for (const auto &entry : std::filesystem::directory_iterator(folder))
        files.push_back(entry.path());
    std::sort(files.begin(), files.end());
    return files;
}

std::string contentOf(const std::filesystem::path &path)
{
    std::ifstream file(path, std::ios::binary);
    return {std::istreambuf_iterator<char>(file), {}};
}

} // namespace

int main(int argc, char **argv)
{
    if (LLVMFuzzerInitialize)
        LLVMFuzzerInitialize(&argc, &argv);
    int inputs = 0;
    for (int i = 1; i < argc; ++i) {
        for (const auto &path : filesOf(argv[i])) {
            // Said beforehand: an input that does not pass ends the process.
            std::fprintf(stderr, "%s\n", path.c_str());
            const std::string content = contentOf(path);
            LLVMFuzzerTestOneInput(reinterpret_cast<const unsigned char *>(content.data()),
                                   content.size());
            ++inputs;
        }
    }
    if (inputs == 0)
        std::fputs("There are no inputs.\n", stderr);
    return inputs > 0 ? 0 : 1;
}
