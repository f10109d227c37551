// Lets a stepped clock, which otherwise stands still, advance by itself.
#pragma once

#include "sdk/demo/steppableclock.h"

#include <thread>

/// During its lifetime, advances a stepped clock by 50 ms on a separate thread whenever a thread waits for
/// it: a timeout ends after a moment of real time. The clock must outlive this object.
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
