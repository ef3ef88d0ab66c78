// What any approach has to pay that reads a file anew at each use.
#pragma once

#include <benchmark/benchmark.h>

#include <string>

namespace bench {

/// open, fstat, read and close, of a file that is read as a whole.
void readPlainly(benchmark::State& state, const std::string& path);

} // namespace bench
