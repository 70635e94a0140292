// How libFuzzer calls a target. It brings the main() along.

#include "support/fuzz.h"
#include "support/ownhome.h"

#include <QCoreApplication>

#include <cstddef>
#include <cstdint>

extern "C" int LLVMFuzzerInitialize(int *argc, char ***argv);
extern "C" int LLVMFuzzerTestOneInput(const uint8_t *data, size_t size);

int LLVMFuzzerInitialize(int *argc, char ***argv)
{
    static const OwnHome home;
    static const QCoreApplication application(*argc, *argv);
    return 0;
}

int LLVMFuzzerTestOneInput(const uint8_t *data, size_t size)
{
    Fuzz::tryOut(QByteArrayView(data, qsizetype(size)));
    return 0;
}
