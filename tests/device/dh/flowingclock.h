// A stepped clock that advances by itself.
#pragma once

#include "sdk/demo/steppableclock.h"

#include <thread>

/// Advances a stepped clock on a separate thread whenever a thread waits for it.
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
