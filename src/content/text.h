// The text rules that course files, notes and texts of the interface share.
//
// Leaf target hv_text: pure functions over Qt Core, safe on any thread. Two sets of characters:
//   blanks   every Unicode space separator (general category Zs) and the tab U+0009
//   lines    U+000A to U+000D, U+0085, U+2028 and U+2029
// QString::trimmed() takes off still other control characters, so it doesn't stand in for these.
#pragma once

#include <QByteArrayView>
#include <QString>
#include <QStringList>
#include <QStringView>

#include <optional>

namespace Text {

/// Whether a character is a blank. A line end is none.
[[nodiscard]] bool isBlank(QChar character);

/// Whether a character ends a line. The carriage return, the vertical tab and the form feed do.
[[nodiscard]] bool isLineEnd(QChar character);

/// The text without the blanks at both its ends: a view into the text handed in.
[[nodiscard]] QStringView trimmedBlanks(QStringView text);

/// The text without the blanks and line ends at both its ends: a view into the text handed in.
[[nodiscard]] QStringView trimmedBlanksAndLines(QStringView text);

/// The number that the whole text spells: one optional "+" or "-", then one or more of the digits
/// "0" to "9", leading zeros included. Nothing for any other text, blanks around the digits among
/// them, and for a number beyond the signed 64-bit range.
[[nodiscard]] std::optional<qint64> wholeNumber(QStringView text);

/// The text that the bytes encode as UTF-8, without the byte order mark if they begin with one.
/// Nothing if any byte breaks the encoding: overlong forms, surrogates, values above U+10FFFF and
/// sequences cut off are refused, never replaced. A NUL byte is a character like any other.
[[nodiscard]] std::optional<QString> decodedUtf8(QByteArrayView bytes);

/// The number of characters as a reader counts them (grapheme clusters): a letter with its
/// combining marks is one, and so is CR LF.
[[nodiscard]] qsizetype characterCount(QStringView text);

/// What one can search for in a text: the runs of letters, marks and numbers (general categories
/// L, M and N), in lower case. "f/2.8" is the three words "f", "2" and "8".
[[nodiscard]] QStringList words(QStringView text);

} // namespace Text
