#include "clipboard_properties.h"

#include <algorithm>
#include <numeric>
#include <optional>
#include <stdexcept>
#include <string>
#include <vector>

#include "files/data_directory.h"
#include "files/file_error.h"
#include "forms/characters.h"
#include "project/pasting.h"

namespace plexel {

namespace {

void Require(bool holds, const char* property) {
  if (!holds) throw std::logic_error(property);
}

std::optional<std::vector<ElementRecord>> Definitions(std::string_view text) {
  try {
    return DefinitionsIn(text);
  } catch (const FileError& error) {
    Require(!error.Reason().empty(), "an error has a reason");
    Require(characters::IsWellFormed(error.Reason()), "a reason is UTF-8");
    return std::nullopt;
  }
}

}  // namespace

Clipboard::Clipboard()
    : document_(PanelDocument::New(
          "Large", {world_.component, world_.host, std::make_shared<HostForm>(), DataDirectory() / "panels"})) {}

void Clipboard::Check(std::string_view text) {
  world_.host.Forget();
  const auto definitions = Definitions(text);
  if (!definitions) return;
  std::vector<std::size_t> places(document_->Places().size());
  std::iota(places.begin(), places.end(), std::size_t{0});
  if (definitions->size() > 1) places.resize(std::min(places.size(), definitions->size()));
  if (!Pasting::Fits(definitions->size(), places.size())) return;

  const std::string before = CopiedText(*document_, places);
  Pasting pasting(*document_, *definitions, places);
  for (const Misfit& misfit : pasting.Misfits())
    Require(!misfit.element.empty(), "what does not fit names its element");
  pasting.LedsTwice();
  pasting.Do(StepKind::Paste);
  const std::string pasted = CopiedText(*document_, places);
  const auto again = DefinitionsIn(pasted);
  Require(again.size() == places.size(), "as many definitions are copied as elements");
  Pasting(*document_, again, places).Do(StepKind::Paste);
  Require(CopiedText(*document_, places) == pasted, "what was copied gives the same when it is pasted");
  while (document_->Steps().CanUndo()) document_->Undo();
  Require(CopiedText(*document_, places) == before, "undo gives the elements back");
}

}  // namespace plexel
