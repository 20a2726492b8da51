#pragma once

#include <string>

namespace dravik::sample {

// Writes the league in the tables to the client file `path`, which appears when it is whole; plain or in the compressed
// wrapper, as `SkipZIPClient` says. False after a failure with a wrapped file, which is told in a box; failures with a
// plain one are thrown.
bool WriteClientFile(const std::string& path);

} // namespace dravik::sample
