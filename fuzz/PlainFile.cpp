#include "fuzz/ReadFileTarget.h"
#include "fuzz/SlotPieces.h"

namespace dravik::fuzz {

bool FilesArePlain() { return true; }

std::shared_ptr<const Content> FileOf(Input input) { return std::make_shared<SlotPieces>(input); }

} // namespace dravik::fuzz
