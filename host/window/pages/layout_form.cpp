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
const QString reverse = QStringLiteral("outputorder");

// The boxes in the order of the page.
QList<std::pair<QString, QString>> rows()
{
    return {{numberUp, LayoutForm::tr("Pages per side:")},
            {order, LayoutForm::tr("Order:")},
            {QStringLiteral("page-border"), LayoutForm::tr("Border:")},
            {QStringLiteral("orientation-requested"), LayoutForm::tr("Orientation:")},
            {QStringLiteral("print-scaling"), LayoutForm::tr("Scaling:")},
            {QStringLiteral("page-set"), LayoutForm::tr("Odd or even:")}};
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
    for (const auto &[name, label] : rows())
        addRow(name, label, grid);
    addReverse(grid);
    refresh();
}

int LayoutForm::labelWidth(const QWidget *page)
{
    int width = 0;
    for (const auto &[name, label] : rows())
        width = qMax(width, page->fontMetrics().horizontalAdvance(label));
    return width + 2; // as in a label
}

int LayoutForm::heightIn(const QGridLayout &grid, int controlHeight)
{
    const int controls = static_cast<int>(rows().size()) + 1; // the boxes and the check box
    const int heading = headingGap + grid.parentWidget()->fontMetrics().height();
    return heading + controls * (grid.verticalSpacing() + controlHeight);
}

void LayoutForm::addRow(const QString &name, const QString &label, QGridLayout *grid)
{
    auto *box = new platform::ChoiceBox(grid->parentWidget());
    box->setMaximumWidth(mostWidth);
    box->setObjectName(name);
    box->setAccessibleName(label.chopped(1).trimmed());
    box->setWhatsThis(explanationOf(name));
    for (const QString &value : PageLayoutSettings::offered(name))
        box->addItem(layoutValueText(name, value), value);
    box->setMinimumWidth(qBound(boxWidth, box->minimumSizeHint().width(), mostWidth));
    auto *text = new QLabel(label, grid->parentWidget());
    text->setAlignment(Qt::AlignRight | Qt::AlignTrailing | Qt::AlignVCenter);
    text->setBuddy(box); // used by screen readers to name the box
    const int row = grid->rowCount();
    grid->addWidget(text, row, 0);
    grid->addWidget(box, row, 1);
    m_rows.append({name, box});
    connect(box, &QComboBox::activated, this, [this, index = m_rows.size() - 1] { choose(m_rows[index]); });
}

void LayoutForm::addReverse(QGridLayout *grid)
{
    m_reverse = new QCheckBox(tr("Last page first"), grid->parentWidget());
    m_reverse->setObjectName(reverse);
    m_reverse->setWhatsThis(explanationOf(reverse));
    grid->addWidget(m_reverse, grid->rowCount(), 1);
    connect(m_reverse, &QCheckBox::toggled, this, [this](bool on) {
        m_session->general().layout.set(reverse, on ? QStringLiteral("reverse") : QStringLiteral("normal"));
        Q_EMIT changed();
    });
}

void LayoutForm::choose(const Row &row)
{
    PageLayoutSettings &layout = m_session->general().layout;
    const QString value = row.box->currentData().toString();
    if (value.isEmpty())
        layout.reset(row.name);
    else
        layout.set(row.name, value);
    refresh();
    Q_EMIT changed();
}

void LayoutForm::refresh()
{
    const PageLayoutSettings &layout = m_session->general().layout;
    const bool several = layout.pagesPerSide() > 1;
    for (const Row &row : std::as_const(m_rows)) {
        const QString value = layout.value(row.name);
        // A default may be an uncommon value that is not offered.
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
    m_reverse->setChecked(layout.isReversed());
}

} // namespace host
