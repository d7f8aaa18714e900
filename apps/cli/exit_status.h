#pragma once

namespace plexel {

/// Exit statuses of the program.
inline constexpr int AllSucceeded = 0, SomeFailed = 1, WrongCall = 2;

}  // namespace plexel
