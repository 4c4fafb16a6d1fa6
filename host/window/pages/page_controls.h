// SPDX-FileCopyrightText: 2026 The kelmar-print authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include <QList>
#include <QString>

class QWidget;

namespace host {

// A control on a page of the host or of a bundle.
struct PageControl
{
    QWidget *control = nullptr; // owned by the page
    QString name;               // plain text of its name
    QString keyword;            // the PPD option or key of a panel that it sets; null if unknown
};

// The named controls of a page that the Tab key can reach, including those in views of the page that are not
// shown now, in the order of the page. Buttons that reset an adjacent control are left out.
QList<PageControl> controlsOf(const QWidget *page);

// The control that sets an option, else the one with that name, else the one whose object name is the
// keyword; null if the page has none (yet).
QWidget *findControl(const QWidget *page, const QString &keyword, const QString &name);

// A label's text without access key and colon: "Copies" for "&Copies:", "部数" for "部数(&C):".
QString bareText(QString text);
// Why a control or a choice is greyed out.
QString notAvailableWhile(const QString &option, const QString &choice);
// The PPD option or key of a panel that a control sets; null if there is none.
QString keywordOf(const QWidget *control);

// Highlights a control briefly: a ring that fades in and out, or does not move if animations are disabled.
// The ring disappears after a second.
void flash(QWidget *control);

} // namespace host
