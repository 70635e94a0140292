// The inputs that are kept of a fuzz target: where it begins, and what has once been found.

#include "support/fuzz.h"

#include <QDir>
#include <QFile>

#include <gtest/gtest.h>

TEST(KeptInputs, KeepEveryPromise)
{
    const QDir folder(QStringLiteral(HV_FUZZ_INPUTS));
    const QFileInfoList inputs = folder.entryInfoList(QDir::Files);
    ASSERT_FALSE(inputs.isEmpty());
    for (const QFileInfo &input : inputs) {
        SCOPED_TRACE(input.fileName().toStdString());
        QFile file(input.filePath());
        ASSERT_TRUE(file.open(QIODevice::ReadOnly));
        const QByteArray bytes = file.readAll();
        EXPECT_NO_THROW(Fuzz::tryOut(bytes));
    }
}
