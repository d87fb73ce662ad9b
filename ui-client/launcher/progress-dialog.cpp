// SPDX-License-Identifier: MIT
#include "progress-dialog.h"

#include <QFont>
#include <QIcon>
#include <QLabel>
#include <QPalette>

#include "install-paths.h"
#include "qt-text.h"
#include "str-table.h"

ProcessingProgressDialog::ProcessingProgressDialog() : QProgressDialog(nullptr, Qt::WindowFlags()) {
    const QFont font(QStringLiteral("Arial"));
    const QString icon =
        ToQString(InstallPaths::LauncherResources()) + QStringLiteral("/images/ico_72_lumaris.png");

    setWindowTitle(StrTable::LoadStr(StrTable::kNameText));
    setWindowIcon(QIcon(icon));
    setWindowFlags(Qt::WindowTitleHint | Qt::WindowSystemMenuHint);
    setValue(0);
    setRange(0, 100);
    setLabelText(StrTable::LoadStr(StrTable::kPreparingText));
    setFont(font);
    setFixedWidth(400);
    setModal(true);
    setWindowModality(Qt::WindowModal);
    setStyleSheet(
        QStringLiteral(" QProgressDialog { background-color: WhiteSmoke; \n"
                       "  vertical-align: middle } "));
    // The background is light in every theme, so the light text of a dark theme would vanish. The
    // style sheet overrides the dialog's own palette, so the label gets one.
    auto *label = findChild<QLabel *>();
    QPalette palette = label->palette();
    palette.setColor(QPalette::WindowText, Qt::black);
    label->setPalette(palette);
}

ProcessingProgressDialog::~ProcessingProgressDialog() = default;
