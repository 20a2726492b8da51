#pragma once

#include "machine/WithoutDesktop.h"

#include <cstddef>
#include <cstdint>
#include <map>
#include <memory>
#include <string>
#include <vector>

namespace dravik::fuzz {

// What a file of the machine holds.
class Content {
public:
    Content() = default;
    Content(const Content&) = delete;
    Content& operator=(const Content&) = delete;
    virtual ~Content() = default;

    [[nodiscard]] virtual std::int64_t Length() const = 0;
    // Copies `size` bytes from `at` on; all of them are within the length.
    virtual void Copy(std::int64_t at, void* data, std::size_t size) const = 0;
};

// Bytes as they are.
class PlainContent final : public Content {
public:
    explicit PlainContent(std::vector<std::uint8_t> all = {}) : bytes(std::move(all)) {}

    void Append(const void* data, std::size_t size);

    [[nodiscard]] std::int64_t Length() const override { return static_cast<std::int64_t>(bytes.size()); }
    void Copy(std::int64_t at, void* data, std::size_t size) const override;

private:
    std::vector<std::uint8_t> bytes;
};

// A machine whose disk is memory. It shows nothing, remembers how often it should have, and answers every question with
// the default.
class MemoryPlatform final : public WithoutDesktop<Platform> {
public:
    std::map<std::string, std::shared_ptr<const Content>> Files;
    long BoxCount = 0;

    int MessageBox(const std::string& text, int kind, const std::string& title) override;
    std::string ProgramFolder() override { return "folder"; }
    std::string Version() override { return "1.0"; }
    std::string Currency(double amount) const override;
    std::string CurrencyNoDecimals(double amount) const override;
    std::string Fixed(double value, int decimals) const override;
    std::string LongDate(double days) const override;
    std::string ShortTime(double days) const override;
    std::array<std::uint8_t, 16> Md5(std::string_view bytes) override;

    std::unique_ptr<File> OpenFile(const std::string& path) override;
    std::unique_ptr<File> CreateFile(const std::string& path) override;
    std::int64_t FileLength(const std::string& path) override;
    void RenameFile(const std::string& from, const std::string& to) override;
    void DeleteFile(const std::string& path) override;
    std::optional<std::string> FindEntry(const std::string& path) override;
    bool KeepEarlier(const std::string& /*path*/, const std::string& /*when*/) noexcept override { return true; }
};

// A path in the machine's folder.
std::string InFolder(const std::string& name);

} // namespace dravik::fuzz
