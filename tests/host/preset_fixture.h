// SPDX-FileCopyrightText: 2026 The kelmar-print authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include "tests/host/window_fixture.h"

#include <QAction>
#include <QApplication>
#include <QFocusEvent>
#include <QMenu>

// Base class of tests that also use the menu of presets.
class PresetFixture : public WindowFixture
{
protected:
    QPushButton *presets() { return find<QPushButton>(QStringLiteral("presets")); }
    QStringList menuTexts()
    {
        QFocusEvent focus(QEvent::FocusIn); // creates the menu
        QApplication::sendEvent(presets(), &focus);
        Q_EMIT presets()->menu()->aboutToShow();
        settle(); // reading the files may take longer than the menu waits
        Q_EMIT presets()->menu()->aboutToShow();
        QStringList texts;
        for (const QAction *action : presets()->menu()->actions())
            texts.append(action->text().remove(QLatin1Char('&')));
        return texts;
    }
    void trigger(const QString &text)
    {
        const QStringList texts = menuTexts();
        QVERIFY2(texts.contains(text), qPrintable(texts.join(QLatin1Char('|'))));
        presets()->menu()->actions().at(texts.indexOf(text))->trigger();
        settle();
    }
};
