#pragma once

#include <string>

// The last line of a terminal: how far the work is stands there, or a question, never both.
namespace dravik::terminal {

// Shows `words` (shorter than a terminal is wide) at the foot of the terminal at the standard error, in the place of what stood
// there. Nothing is shown where that is no terminal, nor while a question stands there.
void ShowAtFoot(const std::string& words);

// Takes away what `ShowAtFoot` showed.
void ClearFoot();

// While one lives, the foot belongs to a question. A second one waits for the end of the first.
class QuestionAtFoot {
public:
    QuestionAtFoot();
    QuestionAtFoot(const QuestionAtFoot&) = delete;
    QuestionAtFoot& operator=(const QuestionAtFoot&) = delete;
    ~QuestionAtFoot();
};

} // namespace dravik::terminal
