// A network library without devices.
#pragma once

#include "sdk/demo/demonetlibrary.h"
#include "sdk/demo/demosite.h"
#include "sdk/demo/steppableclock.h"

/// Refuses every request. Tests override the operations that they need.
class QuietNetLibrary : public sdk::demo::DemoNetLibrary
{
public:
    QuietNetLibrary() : DemoNetLibrary(emptySite()) {}

private:
    static sdk::demo::DemoSite &emptySite()
    {
        static const auto site =
            sdk::demo::DemoSite::create({}, std::make_shared<sdk::demo::SteppableClock>());
        return *site;
    }
};
