#include "support/fuzz.h"

#include <stdexcept>

void Fuzz::expect(bool holds, const char *promise)
{
    if (!holds)
        throw std::logic_error(promise);
}
