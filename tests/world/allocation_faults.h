#pragma once

namespace plexel {

/// Makes one request for memory fail: of those that the thread which made this object sends to operator new, the one of
/// this number, from 1. What the toolkit and other libraries ask for by themselves is not counted: they do not promise
/// to live on. One that the standard library sends while it goes through folders is left to the next: GCC's ends the
/// program when it fails. Whoever links this has its operator new. One at a time.
class AllocationFault {
 public:
  explicit AllocationFault(int number);
  ~AllocationFault();
  AllocationFault(const AllocationFault&) = delete;
  AllocationFault& operator=(const AllocationFault&) = delete;

  bool HasFailed() const;
};

}  // namespace plexel
