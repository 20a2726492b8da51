#pragma once

#include "league/Failure.h"
#include "support/ScriptedPlatform.h"

#include <gtest/gtest.h>
#include <string>

namespace dravik {

// A machine that fails to show its next `FailuresLeft` boxes, so that the failure leaves the routine that wanted to tell.
// The boxes after them are recorded.
class FailingBoxes : public ScriptedPlatform {
public:
    explicit FailingBoxes(int failures = 0) : FailuresLeft(failures) {}
    ~FailingBoxes() override { EXPECT_LE(FailuresLeft, 0) << "boxes that were to fail and never came"; }

    int FailuresLeft;

    int MessageBox(const std::string& text, int kind, const std::string& title) override
    {
        if (FailuresLeft-- > 0)
            Fail(failure::Overflow);
        return ScriptedPlatform::MessageBox(text, kind, title);
    }
};

// A machine that fails to ask for a text.
class SilentInput : public ScriptedPlatform {
public:
    std::string InputBox(const std::string& /*prompt*/, const std::string& /*title*/,
                         const std::string& /*text*/) override
    {
        Fail(failure::OutOfMemory);
    }
};

} // namespace dravik
