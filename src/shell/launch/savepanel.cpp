#include "shell/launch/savepanel.h"

#include <QDir>
#include <QFileDialog>
#include <QStandardPaths>

using namespace Qt::StringLiterals;

std::optional<QString> Launch::askWhereToSave(QWindow *window, const QString &suggestedName)
{
    const QString documents = QStandardPaths::writableLocation(QStandardPaths::DocumentsLocation);

    QFileDialog panel;
    panel.setAcceptMode(QFileDialog::AcceptSave);
    panel.setWindowTitle(QFileDialog::tr("Export My Notes & Progress"));
    panel.setNameFilter(QFileDialog::tr("Plain text (*.txt)"));
    panel.setDefaultSuffix(u"txt"_s);
    panel.setDirectory(QDir(documents).exists() ? documents : QDir::homePath());
    panel.selectFile(suggestedName);
    // The camera is no widget, so it can't be named as the parent.
    panel.winId();
    panel.windowHandle()->setTransientParent(window);

    if (panel.exec() != QDialog::Accepted)
        return std::nullopt;
    return panel.selectedFiles().value(0);
}
