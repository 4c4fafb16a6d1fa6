// SPDX-FileCopyrightText: 2026 The kelmar-print authors
// SPDX-License-Identifier: Apache-2.0

#include "host/window/pages/layout_form.h"

#include "host/session/dialog_session.h"
#include "host/window/look/explanations.h"
#include "platform/choice_box.h"

#include <QCheckBox>
#include <QGridLayout>
#include <QLabel>

namespace host {

namespace {

constexpr int boxWidth = 240; // pixels, as in the panels
constexpr int mostWidth = 360;
constexpr int headingGap = 12; // above the heading

const QString numberUp = QStringLiteral("number-up");
const QString order = QStringLiteral("number-up-layout");
const QString border = QStringLiteral("page-border");
const QString orientation = QStringLiteral("orientation-requested");
const QString scaling = QStringLiteral("print-scaling");
const QString pageSet = QStringLiteral("page-set");

QStringList sheetChoices()
{
    QStringList choices;
    for (const int pages : PageLayoutSettings::pagesPerSideChoices())
        choices.append(QString::number(pages));
    return choices;
}

} // namespace

LayoutForm::LayoutForm(DialogSession *session, QGridLayout *grid, QObject *parent)
    : QObject(parent), m_session(session)
{
    auto *heading = new QLabel(tr("Page layout"), grid->parentWidget());
    QFont bold = heading->font();
    bold.setBold(true);
    heading->setFont(bold);
    grid->setRowMinimumHeight(grid->rowCount(), headingGap);
    grid->addWidget(heading, grid->rowCount(), 0, 1, 2);
    addRow(numberUp, tr("Pages per side:"), sheetChoices(), grid);
    addRow(order, tr("Order:"), PageLayoutSettings::orders(), grid);
    addRow(border, tr("Border:"), PageLayoutSettings::borders(), grid);
    addRow(orientation, tr("Orientation:"), {QString(), QStringLiteral("3"), QStringLiteral("4")}, grid);
    addRow(scaling, tr("Scaling:"), {QString(), QStringLiteral("fit"), QStringLiteral("none")}, grid);
    addRow(pageSet, tr("Odd or even:"), PageLayoutSettings::pageSets(), grid);
    addReverse(grid);
    refresh();
}

int LayoutForm::labelWidth(const QWidget *page)
{
    int width = 0;
    for (const QString &label : {tr("Pages per side:"), tr("Order:"), tr("Border:"), tr("Orientation:"),
                                 tr("Scaling:"), tr("Odd or even:")})
        width = qMax(width, page->fontMetrics().horizontalAdvance(label));
    return width + 2; // as a label has it
}

int LayoutForm::heightIn(const QGridLayout &grid, int controlHeight)
{
    constexpr int rows = 7; // boxes and the box to tick
    const int heading = headingGap + grid.parentWidget()->fontMetrics().height();
    return heading + rows * (grid.verticalSpacing() + controlHeight);
}

void LayoutForm::addRow(const QString &name, const QString &label, const QStringList &values,
                        QGridLayout *grid)
{
    auto *box = new platform::ChoiceBox(grid->parentWidget());
    box->setMaximumWidth(mostWidth);
    box->setObjectName(name);
    box->setAccessibleName(label.chopped(1).trimmed());
    box->setWhatsThis(explanationOf(name));
    for (const QString &value : values)
        box->addItem(name == numberUp ? value : layoutValueText(name, value), value);
    box->setMinimumWidth(qBound(boxWidth, box->minimumSizeHint().width(), mostWidth));
    auto *text = new QLabel(label, grid->parentWidget());
    text->setAlignment(Qt::AlignRight | Qt::AlignTrailing | Qt::AlignVCenter);
    text->setBuddy(box); // by which screen readers name the box
    const int row = grid->rowCount();
    grid->addWidget(text, row, 0);
    grid->addWidget(box, row, 1);
    m_rows.append({name, box});
    connect(box, &QComboBox::activated, this, [this, index = m_rows.size() - 1] { choose(m_rows[index]); });
}

void LayoutForm::addReverse(QGridLayout *grid)
{
    m_reverse = new QCheckBox(tr("Last page first"), grid->parentWidget());
    m_reverse->setObjectName(QStringLiteral("outputorder"));
    m_reverse->setWhatsThis(explanationOf(QStringLiteral("outputorder")));
    grid->addWidget(m_reverse, grid->rowCount(), 1);
    connect(m_reverse, &QCheckBox::toggled, this, [this](bool on) {
        m_session->general().layout.isReversed = on;
        Q_EMIT changed();
    });
}

QString LayoutForm::current(const QString &name) const
{
    const PageLayoutSettings &layout = m_session->general().layout;
    if (name == numberUp)
        return QString::number(layout.pagesPerSide);
    if (name == order)
        return layout.order;
    if (name == border)
        return layout.border;
    if (name == orientation)
        return layout.orientation;
    return name == scaling ? layout.scaling : layout.pageSet;
}

void LayoutForm::choose(const Row &row)
{
    PageLayoutSettings &layout = m_session->general().layout;
    const QString value = row.box->currentData().toString();
    if (!value.isEmpty())
        layout.set(row.name, value);
    else if (row.name == orientation)
        layout.orientation.clear();
    else
        layout.scaling.clear();
    refresh();
    Q_EMIT changed();
}

void LayoutForm::refresh()
{
    const bool several = m_session->general().layout.pagesPerSide > 1;
    for (const Row &row : std::as_const(m_rows)) {
        const QString value = current(row.name);
        // A default may be one that is seldom wanted and not offered.
        if (row.box->findData(value) < 0)
            row.box->addItem(layoutValueText(row.name, value), value);
        row.box->setCurrentIndex(row.box->findData(value));
        if (row.name == order) {
            row.box->setEnabled(several);
            row.box->setToolTip(
                several ? QString()
                        : tr("Not available while \"%1\" is \"%2\".")
                              .arg(tr("Pages per side:").chopped(1).trimmed(), QString::number(1)));
        }
    }
    const QSignalBlocker quiet(m_reverse);
    m_reverse->setChecked(m_session->general().layout.isReversed);
}

} // namespace host
