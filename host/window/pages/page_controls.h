// SPDX-FileCopyrightText: 2026 The kelmar-print authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include <QList>
#include <QString>

class QWidget;

namespace host {

// A control of a page, of the host's own or of a bundle.
struct PageControl
{
    QWidget *control = nullptr; // the page's
    QString name;               // what the user knows it as, as plain text
    QString keyword;            // the PPD option or key of a panel that it sets; null where that is unknown
};

// The controls of a page that the Tab key can reach, now or after another view of the page has been opened,
// in the order of the page. Buttons next to a control that reset it are left out.
QList<PageControl> controlsOf(const QWidget *page);

// The control that sets an option, else the one of that name; null where the page has none (yet).
QWidget *findControl(const QWidget *page, const QString &keyword, const QString &name);

// A label's text as a name: "Copies" of "&Copies:", "部数" of "部数(&C):".
QString bareText(QString text);
// The PPD option or key of a panel that a control sets; null for a widget that sets none.
QString keywordOf(const QWidget *control);

// Shows for a moment which control is meant: a ring that glows up and fades, or stands still where the
// platform asks for no animation. The ring is gone after a second.
void flash(QWidget *control);

} // namespace host
