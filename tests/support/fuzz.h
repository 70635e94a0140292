// What a fuzz target is: one reader of the program, and bytes that a machine makes up.
//
// A source <name>_fuzz.cpp beside the tests of the reader defines Fuzz::tryOut(). hv_add_fuzz()
// makes of it the test that feeds the inputs kept in tests/fuzz-inputs/<name>, and in a build with
// HV_FUZZ the program that looks for new ones.
#pragma once

#include <QByteArrayView>

namespace Fuzz {

/// Hands the bytes to the reader as the program would, and expects what the reader promises.
/// Whatever leaves it as an exception counts as a failure. What it keeps between two calls must not
/// change what the next one does.
void tryOut(QByteArrayView bytes);

/// Throws a std::logic_error that names the promise unless it holds.
void expect(bool holds, const char *promise);

} // namespace Fuzz
