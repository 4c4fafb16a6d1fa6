// SPDX-FileCopyrightText: 2026 The kelmar-print authors
// SPDX-License-Identifier: Apache-2.0

// Measures the minimum start time of a Qt dialog, with one tab and two buttons, until its first paint.
#include "bench/startup/first_paint.h"

#include <QApplication>
#include <QDialog>
#include <QDialogButtonBox>
#include <QTabWidget>
#include <QVBoxLayout>

int main(int argc, char **argv)
{
    QApplication application(argc, argv);
    QDialog dialog;
    auto *layout = new QVBoxLayout(&dialog);
    auto *tabs = new QTabWidget;
    tabs->addTab(new QWidget, QStringLiteral("Tab"));
    layout->addWidget(tabs);
    layout->addWidget(new QDialogButtonBox(QDialogButtonBox::Ok | QDialogButtonBox::Cancel));
    new FirstPaint(&dialog);
    return dialog.exec();
}
