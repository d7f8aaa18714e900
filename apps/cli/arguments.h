#pragma once

#include <cstdint>
#include <string>
#include <vector>

#include "cli/words.h"
#include "scancodes/code_sequence.h"

namespace plexel {

/// The words behind a command's name, taken one after the other. A word that is not of the wanted kind is a
/// CommandError. Numbers are decimal or, behind "0x", hexadecimal; a hexadecimal one may be the bit pattern of a
/// negative number.
class Arguments {
 public:
  /// The words must outlive this object.
  explicit Arguments(const std::vector<Word>& words, std::size_t first = 1) : words_(words), next_(first) {}

  std::size_t Left() const { return words_.size() - next_; }
  bool More() const { return Left() > 0; }

  const Word& Take();
  std::string Text();
  std::int32_t Int32();
  std::int16_t Int16();
  /// A number from 0 to `last`; `what` names it in the refusal.
  std::int32_t UpTo(std::int32_t last, const char* what);
  /// A word of 32 bits, whose number may be given with or without a sign.
  std::int32_t Bits32();
  float Single();
  /// A JSON object.
  const Json& Object();
  /// Make and break codes, each if it is there: a row of bytes or an object with a length of its own.
  KeyCodes Codes();
  /// One of two words: true for the first.
  bool Choice(const char* first, const char* second);

 private:
  std::int64_t Integer(int bits);

  const std::vector<Word>& words_;
  std::size_t next_;
};

/// A plain word as a whole number. False when it is none; CommandError when it does not fit the bits.
bool ParseInteger(const std::string& text, int bits, std::int64_t& value);

}  // namespace plexel
