#pragma once

#include <stdexcept>
#include <string>

namespace plexel {

/// What went wrong, in the terms in which the procedures of the system can fail.
enum class FailureKind {
  Overflow,      ///< a number left the range of its type, or float arithmetic had no result
  Index,         ///< an index outside its array or list
  Conversion,    ///< a value that cannot be read as the wanted type
  ObjectNotSet,  ///< an object that is not there: no current element, no open dialog
  InvalidCall,   ///< an operation that the object cannot do now, such as focus on a hidden control
  NoSuchMember,  ///< a member called by name that the object lacks
  Platform,      ///< a port of the operating system or a service of the host failed
  Handler,       ///< the host's handler of an event failed
};

/// A run-time failure of the system. The failure styles of the services catch this and nothing else; a defect of the
/// program (an assertion, a logic error) is never a Failure.
class Failure : public std::runtime_error {
 public:
  /// A failure with a message for a log, not for the user.
  Failure(FailureKind kind, const std::string& message) : std::runtime_error(message), kind_(kind) {}
  /// What went wrong.
  FailureKind Kind() const { return kind_; }

 private:
  FailureKind kind_;
};

}  // namespace plexel
