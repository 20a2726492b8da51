#pragma once

#include <functional>
#include <nlohmann/json.hpp>
#include <string>
#include <vector>

namespace dravik::terminal {

// Keys stand in the order in which they were entered, so that the same league gives the same bytes.
using Json = nlohmann::ordered_json;

// What a verb has to say about one file. Texts are UTF-8.
struct Answer {
    std::string Text;               // for people, whole lines
    Json Data = Json::object();     // the same for programs
    std::vector<std::string> Notes; // for whoever sits at the terminal, one line each
    int Ending = 0;
};

struct HowToAnswer {
    bool AsJson = false;
    int Threads = 1;  // 1 to 64
    std::string List; // what the JSON calls the row of answers
};

// Has `work` answer for each of `files`, on so many threads at once, and prints the answers in the order of the files, notes and
// failures to the standard error with the name of the file in front. What `work` throws is the failure of its file alone. Work above a
// second has a bar on a terminal. The worst ending of all.
int AnswerEach(const std::vector<std::string>& files, const HowToAnswer& how,
               const std::function<Answer(const std::string& file)>& work);

} // namespace dravik::terminal
