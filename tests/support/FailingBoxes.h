#pragma once

#include "league/Failure.h"
#include "support/ScriptedPlatform.h"

#include <string>

namespace dravik {

// A machine that fails to show its next `FailuresLeft` boxes, so that the failure leaves the routine that wanted to tell.
// The boxes after them are recorded.
class FailingBoxes : public ScriptedPlatform {
public:
    explicit FailingBoxes(int failures = 0, int number = failure::Overflow) : FailuresLeft(failures), Number(number) {}

    int FailuresLeft;
    int Number;

    int MessageBox(const std::string& text, int kind, const std::string& title) override
    {
        if (FailuresLeft-- > 0)
            Fail(Number);
        return ScriptedPlatform::MessageBox(text, kind, title);
    }
};

} // namespace dravik
