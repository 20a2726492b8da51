#include "league/Platform.h"

#include "league/Failure.h"

namespace dravik {

namespace {
Platform* TheMachine = nullptr;
}

Platform& Machine()
{
    if (TheMachine == nullptr)
        Fail(failure::InvalidCall);
    return *TheMachine;
}

void UseMachine(Platform& platform) { TheMachine = &platform; }

} // namespace dravik
