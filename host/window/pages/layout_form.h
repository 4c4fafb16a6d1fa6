// SPDX-FileCopyrightText: 2026 The kelmar-print authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include <QList>
#include <QObject>
#include <QString>

class QCheckBox;
class QGridLayout;
class QWidget;

namespace platform {
class ChoiceBox;
}

namespace host {

class DialogSession;

// Rows of a page for how pages are put on paper: pages per side with their order and border, orientation,
// size, odd or even pages, reverse order. Belongs to the page whose grid it fills; writes to the session,
// which is borrowed and outlives it, at once.
class LayoutForm : public QObject
{
    Q_OBJECT
public:
    LayoutForm(DialogSession *session, QGridLayout *grid, QObject *parent);

    // How wide its labels are in the font of a page, in pixels: a page that makes the form later keeps the
    // place.
    static int labelWidth(const QWidget *page);
    // How high it is in a page's grid whose controls have this height, in pixels, so that the page has the
    // room before.
    static int heightIn(const QGridLayout &grid, int controlHeight);
    // Shows what the session holds now.
    void refresh();

Q_SIGNALS:
    void changed();

private:
    struct Row
    {
        QString name; // of the job option
        platform::ChoiceBox *box;
    };
    void addRow(const QString &name, const QString &label, QGridLayout *grid);
    void addReverse(QGridLayout *grid);
    void choose(const Row &row);

    DialogSession *m_session;
    QList<Row> m_rows;
    QCheckBox *m_reverse = nullptr;
};

} // namespace host
