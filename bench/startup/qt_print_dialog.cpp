// SPDX-FileCopyrightText: 2026 The kelmar-print authors
// SPDX-License-Identifier: Apache-2.0

// Qt's print dialog for a queue, with the printer's options shown. Usage: qt_print_dialog QUEUE
#include "bench/startup/first_paint.h"

#include <QApplication>
#include <QPrintDialog>
#include <QPrinter>
#include <QPushButton>
#include <QTabWidget>

namespace {

// The tab widget of the properties dialog; null until it is visible.
QTabWidget *optionTabs()
{
    const QWidgetList windows = QApplication::topLevelWidgets();
    for (QWidget *window : windows) {
        if (window->isVisible() && !qobject_cast<QPrintDialog *>(window)) {
            if (auto *tabs = window->findChild<QTabWidget *>())
                return tabs;
        }
    }
    return nullptr;
}

} // namespace

int main(int argc, char **argv)
{
    QApplication application(argc, argv);
    QPrinter printer(QPrinter::HighResolution);
    printer.setPrinterName(argc > 1 ? QString::fromLocal8Bit(argv[1]) : QString());
    QPrintDialog dialog(&printer);
    QTimer::singleShot(0, &dialog, [&dialog] {
        QTimer::singleShot(0, &dialog, [] {
            QTabWidget *tabs = optionTabs();
            if (!tabs) {
                std::fputs("no properties dialog came up\n", stderr);
                std::_Exit(1);
            }
            new FirstPaint(tabs->window());
            tabs->setCurrentIndex(tabs->count() - 1);
            tabs->window()->update();
        });
        const QList<QPushButton *> buttons = dialog.findChildren<QPushButton *>();
        for (QPushButton *button : buttons) {
            // The properties button is next to the printer's name.
            if (button->objectName() == QLatin1String("properties"))
                button->click(); // blocks in the properties dialog's own event loop
        }
    });
    return dialog.exec();
}
