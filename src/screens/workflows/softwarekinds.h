// How the workflow screen orders and words what the course knows.
#pragma once

#include <QList>
#include <QString>
#include <QStringList>

struct Software;
struct WorkflowStep;

namespace SoftwareKinds {

/// The kinds of these programs, each once, in the order in which they first appear.
[[nodiscard]] QStringList kinds(const QList<Software> &programs);

/// The programs of a kind, as they come.
[[nodiscard]] QList<Software> ofKind(const QString &kind, const QList<Software> &programs);

/// Who makes a program and where it runs: "Adobe · macOS, Windows".
[[nodiscard]] QString makerLine(const Software &program);

/// "3. Develop".
[[nodiscard]] QString stageLine(const WorkflowStep &step);

} // namespace SoftwareKinds
