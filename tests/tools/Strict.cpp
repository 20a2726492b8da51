// The scripted machines of this floor's tests are strict.
namespace dravik {
extern bool MachinesAreStrict;

namespace {
[[maybe_unused]] const bool areStrict = MachinesAreStrict = true;
}
} // namespace dravik
