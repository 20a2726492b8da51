#pragma once

#include "fuzz/Target.h"

#include <memory>

namespace dravik::fuzz {

class Content;

// What a file on the disk holds for this input: pieces of a slot file where the targets are built for plain files, the
// input as it is where they are built for wrapped ones.
bool FilesArePlain();
std::shared_ptr<const Content> FileOf(Input input);

} // namespace dravik::fuzz
