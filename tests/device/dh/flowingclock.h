// A stepped clock that passes by itself.
#pragma once

#include "sdk/demo/steppableclock.h"

#include <thread>

/// Moves a stepped clock on whenever somebody waits for it, as time does.
class FlowingClock
{
public:
    explicit FlowingClock(sdk::demo::SteppableClock &clock)
        : m_thread([&clock](const std::stop_token &stop) {
              while (!stop.stop_requested()) {
                  if (clock.waiters() > 0)
                      clock.advance(std::chrono::milliseconds(50));
                  std::this_thread::yield();
              }
          })
    {
    }

private:
    std::jthread m_thread;
};
