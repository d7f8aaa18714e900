#include "headless/faults.h"

#include <algorithm>
#include <stdexcept>
#include <string>

#include "platform/failure.h"

namespace plexel {

namespace {

Fault Known(std::string_view name) {
  const std::optional<Fault> fault = Faults::Named(name);
  if (!fault) throw std::invalid_argument("no fault is named " + std::string(name));
  return *fault;
}

}  // namespace

std::optional<Fault> Faults::Named(std::string_view name) {
  const auto* const row = std::ranges::find(FaultTable, name, &FaultRow::name);
  return row == FaultTable.end() ? std::nullopt : std::optional(row->fault);
}

void Faults::Arm(Fault fault, std::int64_t call) { At(fault).failingCall = call == 0 ? 0 : At(fault).calls + call; }
void Faults::Turn(std::string_view name, bool on) { Turn(Known(name), on); }
void Faults::Arm(std::string_view name, std::int64_t call) { Arm(Known(name), call); }

bool Faults::Trips(Fault fault) {
  State& state = At(fault);
  ++state.calls;
  const bool fails = state.on || state.calls == state.failingCall;
  if (fails && thrower_) thrower_();
  return fails;
}

void Faults::Check(Fault fault) {
  if (!Trips(fault)) return;
  throw Failure(FailureKind::Platform, "fault: " + std::string(FaultTable[static_cast<std::size_t>(fault)].name));
}

}  // namespace plexel
