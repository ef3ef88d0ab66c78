// The system's calls alone.
#include "bench/support/plain_read.hpp"

#include <array>
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

namespace bench {

void readPlainly(benchmark::State& state, const std::string& path) {
    std::array<char, 65536> buffer{};
    for (auto _ : state) {
        const int file = open(path.c_str(), O_RDONLY | O_CLOEXEC);
        struct stat status {};
        fstat(file, &status);
        benchmark::DoNotOptimize(read(file, buffer.data(), buffer.size()));
        close(file);
    }
}

} // namespace bench
