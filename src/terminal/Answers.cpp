#include "terminal/Answers.h"

#include "league/Failure.h"
#include "terminal/Console.h"
#include "terminal/Foot.h"
#include "terminal/Interrupt.h"
#include "terminal/Machine.h"
#include "terminal/Problem.h"
#include "terminal/Utf8.h"

#include <algorithm>
#include <atomic>
#include <chrono>
#include <condition_variable>
#include <iostream>
#include <mutex>
#include <new>
#include <optional>
#include <thread>

namespace dravik::terminal {

namespace {

Answer FailedWith(const std::string& words)
{
    Answer answer;
    answer.Notes.push_back(OnOneLine(words));
    answer.Data["error"] = OnOneLine(words);
    answer.Ending = ending::Failed;
    return answer;
}

Answer AnswerFor(const std::string& file, const std::function<Answer(const std::string&)>& work)
{
    try {
        return work(file);
    } catch (const Problem& problem) {
        return FailedWith(problem.what());
    } catch (const Failure& failed) {
        return FailedWith(failed.what());
    } catch (const std::bad_alloc&) {
        return FailedWith(Failure(failure::OutOfMemory).what());
    } catch (const std::exception& failed) {
        return FailedWith(failed.what());
    }
}

// A bar at the foot of a terminal, for work above a second.
class Bar {
public:
    explicit Bar(std::size_t all) : total(all) {}

    void Show(std::size_t done)
    {
        constexpr std::size_t width = 30;
        constexpr auto patience = std::chrono::seconds(1);
        constexpr auto step = std::chrono::milliseconds(100); // no terminal is asked to show more than an eye sees
        const auto now = std::chrono::steady_clock::now();
        if (now - begin < patience || (isShown && now - shown < step))
            return;
        shown = now;
        const std::size_t full = width * done / std::max<std::size_t>(total, 1);
        ShowAtFoot("[" + std::string(full, '#') + std::string(width - full, ' ') + "] " + std::to_string(done) +
                   " of " + std::to_string(total));
        isShown = true;
    }
    void TakeAway()
    {
        ClearFoot();
        isShown = false;
    }

private:
    std::size_t total;
    std::chrono::steady_clock::time_point begin = std::chrono::steady_clock::now();
    std::chrono::steady_clock::time_point shown;
    bool isShown = false;
};

// The answers as they come, from whichever thread.
class Row {
public:
    explicit Row(std::size_t count) : answers(count) {}

    void Put(std::size_t place, Answer answer)
    {
        const std::lock_guard guard(mutex);
        answers[place] = std::move(answer);
        ++done;
        changed.notify_all();
    }
    // The answer at a place, once it is there. Meanwhile the bar moves.
    Answer Take(std::size_t place, Bar& bar)
    {
        constexpr auto step = std::chrono::milliseconds(200);
        const InterruptsElsewhere writer;
        std::unique_lock guard(mutex);
        while (!changed.wait_for(guard, step, [&] { return answers[place].has_value(); }))
            bar.Show(done);
        Answer answer = std::move(*answers[place]);
        answers[place].reset();
        return answer;
    }

private:
    std::mutex mutex;
    std::condition_variable changed;
    std::vector<std::optional<Answer>> answers;
    std::size_t done = 0;
};

} // namespace

int AnswerEach(const std::vector<std::string>& files, const HowToAnswer& how,
               const std::function<Answer(const std::string&)>& work)
{
    Row row(files.size());
    std::atomic<std::size_t> next = 0;
    const auto run = [&] {
        for (std::size_t place = next++; place < files.size(); place = next++)
            row.Put(place, AnswerFor(files[place], work));
    };
    std::vector<std::jthread> threads;
    const std::size_t count = std::min(static_cast<std::size_t>(how.Threads), files.size());
    for (std::size_t thread = 0; thread < count; ++thread)
        threads.emplace_back(run);

    Bar bar(files.size());
    Json all = Json::array();
    int worst = ending::Done;
    for (std::size_t place = 0; place < files.size(); ++place) {
        Answer answer = row.Take(place, bar);
        worst = std::max(worst, answer.Ending);
        if (how.AsJson) {
            Json entry = {{"file", files[place]}};
            entry.update(answer.Data);
            all.push_back(std::move(entry));
        } else {
            bar.TakeAway();
            std::cout << WithoutControls(answer.Text) << std::flush;
        }
        if (!answer.Notes.empty())
            bar.TakeAway();
        for (const std::string& note : answer.Notes)
            std::cerr << WithoutControls(OnOneLine("dravik: " + files[place] + ": " + note)) << std::endl;
        bar.Show(place + 1);
    }
    bar.TakeAway();
    if (how.AsJson) {
        Json page = Json::object();
        page[how.List] = std::move(all);
        std::cout << WithEscapedControls(page.dump(2, ' ', false, Json::error_handler_t::replace)) << '\n'
                  << std::flush;
    }
    if (std::cout)
        return worst;
    std::cerr << "dravik: standard output: what is told cannot be written" << std::endl;
    return ending::Failed;
}

} // namespace dravik::terminal
