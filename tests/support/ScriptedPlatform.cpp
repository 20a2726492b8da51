#include "support/ScriptedPlatform.h"

#include "league/Failure.h"
#include "machine/Md5.h"
#include "machine/SettingsFailure.h"

#include <algorithm>
#include <chrono>
#include <cmath>
#include <filesystem>
#include <gtest/gtest.h>
#include <iomanip>
#include <locale>
#include <ostream>
#include <random>
#include <sstream>
#include <utility>

namespace dravik {

namespace fs = std::filesystem;

namespace {

class CountedFile final : public File {
public:
    CountedFile(ScriptedPlatform& owner, std::unique_ptr<File> inner) : platform(owner), file(std::move(inner)) {}

    std::size_t Read(void* data, std::size_t size) override
    {
        platform.Count("read");
        return file->Read(data, size);
    }
    void Write(const void* data, std::size_t size) override
    {
        platform.Count("write", [&] {
            if (!platform.TearsWrites)
                return;
            file->Write(data, size / 2);
            file->Flush();
        });
        file->Write(data, size);
    }
    void Flush() override
    {
        platform.Count("flush");
        file->Flush();
    }
    void Close() override
    {
        platform.Count("close");
        file->Close();
    }

private:
    ScriptedPlatform& platform;
    std::unique_ptr<File> file;
};

template <class T>
T Next(std::deque<T>& answers, T otherwise)
{
    if (answers.empty())
        return otherwise;
    T answer = answers.front();
    answers.pop_front();
    return answer;
}

// "$1,234.50" with `decimals` digits behind the point.
std::string Dollars(double amount, int decimals)
{
    const double scale = decimals == 0 ? 1 : 100;
    auto units = static_cast<long long>(std::nearbyint(std::fabs(amount) * scale));
    const long long cents = decimals == 0 ? 0 : units % 100;
    units = decimals == 0 ? units : units / 100;
    std::string digits = std::to_string(units);
    for (auto at = static_cast<std::ptrdiff_t>(digits.size()) - 3; at > 0; at -= 3)
        digits.insert(static_cast<std::size_t>(at), ",");
    std::string text = (amount < 0 ? "-$" : "$") + digits;
    if (decimals > 0)
        text += "." + std::string(cents < 10 ? "0" : "") + std::to_string(cents);
    return text;
}

template <class... Words>
std::string Joined(const Words&... words)
{
    std::ostringstream text;
    (text << ... << words);
    return text.str();
}

// Fails the running test over what a machine has left.
void FailOver(const std::vector<std::string>& left)
{
    constexpr std::size_t most = 20; // of the thousands of a property test
    // Outside of a test, as in a bench, there is nobody to fail.
    if (::testing::UnitTest::GetInstance()->current_test_info() == nullptr)
        return;
    for (std::size_t place = 0; place < std::min(left.size(), most); ++place)
        ADD_FAILURE() << "On the scripted machine " << left[place];
    if (left.size() > most)
        ADD_FAILURE() << "and " << left.size() - most << " more";
}

std::chrono::sys_seconds PointOf(double days)
{
    using namespace std::chrono;
    return sys_days(year(1899) / December / 30) + seconds(std::llround(days * 86400.0));
}

} // namespace

std::ostream& operator<<(std::ostream& out, const Box& box)
{
    return out << "Box{" << box.Kind << ", \"" << box.Text << "\", \"" << box.Title << "\"}";
}

std::ostream& operator<<(std::ostream& out, const Question& question)
{
    return out << "Question{\"" << question.Prompt << "\", \"" << question.Title << "\", \"" << question.Default
               << "\"}";
}

std::ostream& operator<<(std::ostream& out, const News& news)
{
    return out << "News{\"" << news.To << "\", \"" << news.Text << "\"}";
}

ScriptedPlatform::ScriptedPlatform()
{
    // A folder is this machine's own only if nobody else has made it.
    std::random_device random;
    fs::path path;
    do
        path = fs::temp_directory_path() / ("dravik-test-" + std::to_string(random()) + "-" + std::to_string(random()));
    while (!fs::create_directory(path));
    folder = path.string();
}

ScriptedPlatform::~ScriptedPlatform()
{
    std::error_code ignored;
    fs::remove_all(folder, ignored);
    FailOver(LeftOver());
}

std::vector<Box> ScriptedPlatform::TakeBoxes()
{
    waitAtBoxes.clear();
    seenBoxes = 0;
    return std::exchange(boxes, {});
}

void ScriptedPlatform::ClearSeenBoxes()
{
    FailOver(UnseenBoxes());
    (void)TakeBoxes();
}

void ScriptedPlatform::ForgetBoxes(std::string_view /*why*/) { (void)TakeBoxes(); }

std::vector<std::string> ScriptedPlatform::UnseenBoxes() const
{
    std::vector<std::string> unseen;
    for (std::size_t place = seenBoxes; place < boxes.size(); ++place)
        unseen.push_back(Joined("nobody looked at ", boxes[place]));
    return unseen;
}

std::vector<std::string> ScriptedPlatform::LeftOver() const
{
    std::vector<std::string> left = UnseenBoxes();
    const auto note = [&left](const auto&... words) { left.push_back(Joined(words...)); };
    for (const std::size_t place : unansweredQuestions)
        if (place >= seenQuestions)
            note("nobody expected ", questions[place]);
    for (const std::size_t place : unansweredDialogs)
        if (place >= seenDialogs)
            note("nobody expected a dialog in \"", dialogs[place].first, "\" for \"", dialogs[place].second, '"');
    for (const int button : buttons)
        note("nobody took the answer of button ", button);
    for (const std::string& text : typed)
        note("nobody took the answer \"", text, '"');
    for (const std::string& path : chosen)
        note("nobody took the choice of \"", path, '"');
    for (const int number : unmetFailures)
        note("no file operation met failure ", number);
    if (FailureIsAhead())
        note("no file operation met failure ", failNumber);
    if (SaveSettingFailure != 0 && !settingFailed)
        note("no setting met failure ", SaveSettingFailure);
    return left;
}

void ScriptedPlatform::FailFileOperation(std::size_t n, int number)
{
    if (FailureIsAhead())
        unmetFailures.push_back(failNumber);
    failAt = operations.size() + n;
    failNumber = number;
}

std::vector<News> ScriptedPlatform::TakeNews() { return std::exchange(news, {}); }

void ScriptedPlatform::TeamNews(int team, std::string_view text)
{
    news.push_back({"team " + std::to_string(team), std::string(text)});
}

void ScriptedPlatform::Tell(const std::string& event)
{
    if (OnEvent)
        OnEvent(event);
}

int ScriptedPlatform::MessageBox(const std::string& text, int kind, const std::string& title)
{
    boxes.push_back({kind, text, title});
    waitAtBoxes.push_back(WaitShown);
    Tell("box");
    return Next(buttons, kind == box::YesNo || kind == box::YesNoCancel ? button::Yes : button::Ok);
}

std::string ScriptedPlatform::InputBox(const std::string& prompt, const std::string& title, const std::string& text)
{
    if (typed.empty())
        unansweredQuestions.insert(questions.size());
    questions.push_back({prompt, title, text});
    return Next(typed, std::string());
}

std::string ScriptedPlatform::OpenFileDialog(const std::string& startFolder, const std::string& filter)
{
    if (chosen.empty())
        unansweredDialogs.insert(dialogs.size());
    dialogs.emplace_back(startFolder, filter);
    if (chosen.empty())
        Fail(failure::Cancelled);
    return Next(chosen, std::string());
}

namespace {

// Where a setting stands in `Settings`.
std::string PlaceOf(const std::string& section, const std::string& key)
{
    return section == "Settings" ? key : section + '/' + key;
}

} // namespace

std::string ScriptedPlatform::GetSetting(const std::string& section, const std::string& key,
                                         const std::string& otherwise)
{
    const auto found = Settings.find(PlaceOf(section, key));
    return found == Settings.end() ? otherwise : found->second;
}

void ScriptedPlatform::SaveSetting(const std::string& section, const std::string& key, const std::string& value)
{
    if (SaveSettingFailure != 0) {
        settingFailed = true;
        throw SettingsFailure(SaveSettingFailure, InFolder("Settings"));
    }
    Settings[PlaceOf(section, key)] = value;
    Tell("setting " + key);
}

void ScriptedPlatform::ShowWait()
{
    WaitShown = true;
    ++WaitCount;
    Tell("wait up");
}

void ScriptedPlatform::CloseWait()
{
    WaitShown = false;
    Tell("wait down");
}

int ScriptedPlatform::OpenLocation(const std::string& location, int /*showMode*/)
{
    OpenedLocations.push_back(location);
    return 42;
}

std::string ScriptedPlatform::Currency(double amount) const { return Dollars(amount, 2); }
std::string ScriptedPlatform::CurrencyNoDecimals(double amount) const { return Dollars(amount, 0); }
std::string ScriptedPlatform::Fixed(double value, int decimals) const
{
    std::ostringstream text;
    text.imbue(std::locale::classic());
    text << std::fixed << std::setprecision(decimals) << value;
    return text.str();
}

std::string ScriptedPlatform::LongDate(double days) const
{
    static constexpr const char* months[] = {"January", "February", "March",     "April",   "May",      "June",
                                             "July",    "August",   "September", "October", "November", "December"};
    const std::chrono::year_month_day date(std::chrono::floor<std::chrono::days>(PointOf(days)));
    return std::string(months[static_cast<unsigned>(date.month()) - 1]) + " " +
           std::to_string(static_cast<unsigned>(date.day())) + " " + std::to_string(static_cast<int>(date.year()));
}

std::string ScriptedPlatform::ShortTime(double days) const
{
    const auto point = PointOf(days);
    const std::chrono::hh_mm_ss time(point - std::chrono::floor<std::chrono::days>(point));
    const auto two = [](long long n) { return (n < 10 ? "0" : "") + std::to_string(n); };
    return two(time.hours().count()) + ":" + two(time.minutes().count());
}

std::array<std::uint8_t, 16> ScriptedPlatform::Md5(std::string_view bytes) { return Md5Of(bytes); }

void ScriptedPlatform::Count(const std::string& operation, const std::function<void()>& beforeFault)
{
    operations.push_back(operation);
    const bool turn = failOn ? operations.size() >= failAt : operations.size() == failAt;
    if (failAt == 0 || !turn)
        return;
    if (beforeFault)
        beforeFault();
    if (AtFault)
        AtFault();
    Fail(failNumber);
}

std::unique_ptr<File> ScriptedPlatform::OpenFile(const std::string& path)
{
    Count("open");
    return std::make_unique<CountedFile>(*this, DiskFiles::OpenFile(path));
}

std::unique_ptr<File> ScriptedPlatform::CreateFile(const std::string& path)
{
    Count("create");
    return std::make_unique<CountedFile>(*this, DiskFiles::CreateFile(path));
}

std::int64_t ScriptedPlatform::FileLength(const std::string& path)
{
    Count("length");
    return DiskFiles::FileLength(path);
}

void ScriptedPlatform::RenameFile(const std::string& from, const std::string& to)
{
    Count("rename");
    DiskFiles::RenameFile(from, to);
}

void ScriptedPlatform::DeleteFile(const std::string& path)
{
    Count("delete");
    DiskFiles::DeleteFile(path);
}

std::optional<std::string> ScriptedPlatform::FindEntry(const std::string& path)
{
    Count("find");
    return DiskFiles::FindEntry(path);
}

} // namespace dravik
