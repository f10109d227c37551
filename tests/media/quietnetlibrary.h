// A network library without devices, as a base class of test doubles.
#pragma once

#include "sdk/demo/demonetlibrary.h"
#include "sdk/demo/demosite.h"
#include "sdk/demo/steppableclock.h"

/// The network library of a simulated site without devices: searches find nothing and logins fail. Tests
/// override the operations that they need.
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
