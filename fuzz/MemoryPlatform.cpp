#include "fuzz/MemoryPlatform.h"

#include "fuzz/Target.h"
#include "league/Failure.h"

#include <algorithm>
#include <cmath>
#include <cstring>
#include <utility>

namespace dravik::fuzz {

namespace {

class ReadFile final : public File {
public:
    explicit ReadFile(std::shared_ptr<const Content> whole) : content(std::move(whole)) {}

    std::size_t Read(void* data, std::size_t size) override
    {
        const auto left = static_cast<std::size_t>(content->Length() - at);
        const std::size_t count = std::min(size, left);
        content->Copy(at, data, count);
        at += static_cast<std::int64_t>(count);
        return count;
    }
    void Write(const void* /*data*/, std::size_t /*size*/) override { Fail(failure::PathAccess); }
    void Flush() override {}
    void Close() override {}

private:
    std::shared_ptr<const Content> content;
    std::int64_t at = 0;
};

// A file that is being written stands on the disk from the first moment on, as on a real one.
class WriteFile final : public File {
public:
    explicit WriteFile(std::shared_ptr<PlainContent> growing) : content(std::move(growing)) {}

    std::size_t Read(void* /*data*/, std::size_t /*size*/) override { Fail(failure::PathAccess); }
    void Write(const void* data, std::size_t size) override { content->Append(data, size); }
    void Flush() override {}
    void Close() override {}

private:
    std::shared_ptr<PlainContent> content;
};

bool IsKind(int kind)
{
    return kind == box::Critical || kind == box::YesNoCancel || kind == box::YesNo || kind == box::Warning ||
           kind == box::Information;
}

} // namespace

void PlainContent::Append(const void* data, std::size_t size)
{
    const auto* from = static_cast<const std::uint8_t*>(data);
    bytes.insert(bytes.end(), from, from + size);
}

void PlainContent::Copy(std::int64_t at, void* data, std::size_t size) const
{
    if (size > 0)
        std::memcpy(data, bytes.data() + at, size);
}

std::string InFolder(const std::string& name) { return std::string("folder") + PathSeparator + name; }

int MemoryPlatform::MessageBox(const std::string& text, int kind, const std::string& title)
{
    Require(!text.empty() && IsKind(kind) && !title.empty());
    ++BoxCount;
    return kind == box::YesNo || kind == box::YesNoCancel ? button::Yes : button::Ok;
}

// The digits do not matter here; that the amount is a number does.
std::string MemoryPlatform::Currency(double amount) const
{
    Require(std::isfinite(amount));
    return std::to_string(std::llround(amount));
}

std::string MemoryPlatform::CurrencyNoDecimals(double amount) const { return Currency(amount); }
std::string MemoryPlatform::Fixed(double value, int /*decimals*/) const { return Currency(value); }

std::string MemoryPlatform::LongDate(double days) const
{
    Require(days >= -657434 && days < 2958466);
    return "date";
}

std::string MemoryPlatform::ShortTime(double days) const
{
    Require(days >= -657434 && days < 2958466);
    return "time";
}

std::array<std::uint8_t, 16> MemoryPlatform::Md5(std::string_view /*bytes*/) { return {}; }

std::unique_ptr<File> MemoryPlatform::OpenFile(const std::string& path)
{
    const auto found = Files.find(path);
    if (found == Files.end())
        Fail(failure::FileNotFound);
    return std::make_unique<ReadFile>(found->second);
}

std::unique_ptr<File> MemoryPlatform::CreateFile(const std::string& path)
{
    auto content = std::make_shared<PlainContent>();
    Files[path] = content;
    return std::make_unique<WriteFile>(std::move(content));
}

std::int64_t MemoryPlatform::FileLength(const std::string& path)
{
    const auto found = Files.find(path);
    if (found == Files.end())
        Fail(failure::FileNotFound);
    return found->second->Length();
}

void MemoryPlatform::RenameFile(const std::string& from, const std::string& to)
{
    auto node = Files.extract(from);
    if (node.empty())
        Fail(failure::FileNotFound);
    Files.erase(to);
    node.key() = to;
    Files.insert(std::move(node));
}

void MemoryPlatform::DeleteFile(const std::string& path)
{
    if (Files.erase(path) == 0)
        Fail(failure::FileNotFound);
}

std::optional<std::string> MemoryPlatform::FindEntry(const std::string& path)
{
    const auto separator = path.rfind(PathSeparator);
    if (Files.count(path) == 0)
        return std::nullopt;
    return separator == std::string::npos ? path : path.substr(separator + 1);
}

} // namespace dravik::fuzz
