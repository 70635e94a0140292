// The record format of the course files, and the two kinds of list inside its values.
//
//     === LESSON a1-l1
//     module: a1
//     title: What a camera does
//     # a comment
//     minutes: 9
//     ---
//     The body, over as many lines as it needs.
//
//     # this line is part of the body
//
// Line by line, the first that fits:
//   header      begins with "=== ", and starts a record wherever it stands. Behind it, the first
//               word up to a blank U+0020 is the type; the rest of the line is the id.
//   outside     anything above the first header is dropped.
//   body        behind the separator, every line as it stands; only a header ends a body.
//   separator   "---", with or without blanks around it.
//   comment     begins with "#", is dropped.
//   field       holds a ":"; the first one parts the key from the value.
//   the rest    is dropped.
// Lines end with U+000A; every U+000D is ignored. Id, key and value lose the blanks at both ends,
// the body loses blanks and line ends (as hv_text means these words).
//
// Writing by hand forgives: no text is an error, and nothing here knows which types there are.
// Pure functions, safe on any thread.
#pragma once

#include "content/contentrecord.h"

namespace ContentParser {

/// All records of a file's text, in file order, in a time that grows with its length alone.
[[nodiscard]] QList<ContentRecord> parse(QString text);

/// The pieces between commas without the blanks around them; empty ones are left out.
[[nodiscard]] QStringList list(QStringView text);

/// The pieces between upright bars without the blanks around them; always one more than there are
/// bars, as each has its meaning by its place.
[[nodiscard]] QStringList pipes(QStringView text);

} // namespace ContentParser
