// SPDX-FileCopyrightText: 2026 The kelmar-print authors
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include "host/printing/ppd_option.h"

#include <QList>
#include <QObject>
#include <QString>

#include <optional>

class QCheckBox;
class QGridLayout;
class QHBoxLayout;
class QLabel;
class QSpinBox;
class QWidget;

namespace platform {
class ChoiceBox;
}

namespace host {

class DialogSession;

// Rows of a page for the page layout: pages per side with their order and border, orientation, scaling, odd
// or even pages, booklets, reverse order, mirror image. Owned by the page whose grid it fills. Writes to the
// session immediately; the session is borrowed and outlives it.
class LayoutForm : public QObject
{
    Q_OBJECT
public:
    LayoutForm(DialogSession *session, QGridLayout *grid, QObject *parent);

    // The width of the labels in the font of a page, in pixels, so that a page can reserve it before the form
    // is created.
    static int labelWidth(const QWidget *page);
    // The height in a page's grid with controls of this height, in pixels, so that a page can reserve it.
    static int heightIn(const QGridLayout &grid, int controlHeight);
    // Shows the current settings of the session.
    void refresh();

Q_SIGNALS:
    void changed();
    // A choice of the PPD was marked as well.
    void chosen(const QString &keyword);

private:
    struct Switch
    {
        QString name; // name of the job option
        QCheckBox *box;
    };
    struct Row
    {
        QString name; // name of the job option
        platform::ChoiceBox *box;
    };
    void addRow(const QString &name, const QString &label, QGridLayout *grid);
    static QLabel *explain(QWidget *control, const QString &name, const QString &label);
    QHBoxLayout *addScale(QWidget *page);
    void addSwitches(QGridLayout *grid);
    static QHBoxLayout *addSwitchRow(QGridLayout *grid);
    QCheckBox *addSwitch(const QString &name, const QString &text, QWidget *page);
    void choose(const Row &row);
    void turn(const QString &name, bool on);
    void fold(bool on);
    void stitch(bool on);
    static void enable(QWidget *control, const QString &obstacle);
    QString foldingObstacle() const;
    QString stitchingObstacle() const;

    DialogSession *m_session;
    QList<Row> m_rows;
    QSpinBox *m_scale = nullptr; // created with the rows
    QList<Switch> m_switches;
    QCheckBox *m_stitched = nullptr;           // null if the printer has no saddle stitching
    std::optional<OptionChoice> m_stitching;   // that choice
    std::optional<OptionChoice> m_sidesBefore; // two-sided printing before a booklet was selected
};

} // namespace host
