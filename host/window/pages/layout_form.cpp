// SPDX-FileCopyrightText: 2026 The kelmar-print authors
// SPDX-License-Identifier: Apache-2.0

#include "host/window/pages/layout_form.h"

#include "host/session/booklet.h"
#include "host/session/dialog_session.h"
#include "host/session/printed_pages.h"
#include "host/session/setting_keys.h"
#include "host/window/look/access_keys.h"
#include "host/window/look/explanations.h"
#include "host/window/pages/page_controls.h"
#include "platform/choice_box.h"
#include "platform/wheel_guard.h"

#include <QCheckBox>
#include <QGridLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QSpinBox>

namespace host {

namespace {

constexpr int boxWidth = 240; // pixels, as in the panels
constexpr int mostWidth = 360;
constexpr int markGap = 24;   // space for the mark of a change
constexpr int headingGap = 8; // above the heading

const QString numberUp = QStringLiteral("number-up");
const QString order = QStringLiteral("number-up-layout");
const QString booklet = QStringLiteral("booklet");
const QString reverse = QStringLiteral("outputorder");
const QString mirror = QStringLiteral("mirror");
constexpr int switchRows = 2;

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
    addSwitches(grid);
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
    const int controls = static_cast<int>(rows().size()) + switchRows;
    const int heading = headingGap + grid.parentWidget()->fontMetrics().height();
    return heading + controls * (grid.verticalSpacing() + controlHeight);
}

void LayoutForm::addRow(const QString &name, const QString &label, QGridLayout *grid)
{
    auto *box = new platform::ChoiceBox(grid->parentWidget());
    for (const QString &value : PageLayoutSettings::offered(name))
        box->addItem(layoutValueText(name, value), value);
    m_rows.append({name, box});
    connect(box, &QComboBox::activated, this, [this, index = m_rows.size() - 1] { choose(m_rows[index]); });
    QLabel *text = explain(box, name, label);
    text->setAlignment(Qt::AlignRight | Qt::AlignTrailing | Qt::AlignVCenter);
    const int row = grid->rowCount();
    grid->addWidget(text, row, 0);
    if (name == numberUp) {
        auto *both = new QHBoxLayout;
        both->setSpacing(markGap);
        both->addWidget(box, 1);
        both->addLayout(addScale(grid->parentWidget()));
        grid->addLayout(both, row, 1);
        return;
    }
    box->setMaximumWidth(mostWidth);
    box->setMinimumWidth(qBound(boxWidth, box->minimumSizeHint().width(), mostWidth));
    grid->addWidget(box, row, 1);
}

// Returns the label of a control.
QLabel *LayoutForm::explain(QWidget *control, const QString &name, const QString &label)
{
    control->setObjectName(name);
    control->setAccessibleName(bareText(label));
    control->setWhatsThis(explanationOf(name));
    auto *text = new QLabel(label, control->parentWidget());
    text->setBuddy(control); // used by screen readers to name the control
    return text;
}

QHBoxLayout *LayoutForm::addScale(QWidget *page)
{
    constexpr int step = 5;
    const QString &name = naturalScalingName;
    const PageLayoutSettings::Range range = *PageLayoutSettings::rangeOf(name);
    m_scale = new QSpinBox(page);
    m_scale->setRange(range.least, range.most);
    m_scale->setSingleStep(step);
    m_scale->setSuffix(layoutValueText(name, QString()));
    m_scale->setAccelerated(true);
    platform::guardFromWheel(m_scale);
    connect(m_scale, &QSpinBox::valueChanged, this, [this, name](int number) {
        chooseGeneral(m_session, name, QString::number(number));
        Q_EMIT changed();
    });
    auto *row = new QHBoxLayout;
    row->setSpacing(8);
    QLabel *label = explain(m_scale, name, tr("Scale:"));
    label->setProperty(AccessKeys::yieldingProperty, true);
    row->addWidget(label);
    row->addWidget(m_scale);
    return row;
}

void LayoutForm::addSwitches(QGridLayout *grid)
{
    auto *folded = addSwitchRow(grid);
    if (auto *box = addSwitch(booklet, tr("Booklet"), grid->parentWidget()))
        folded->insertWidget(0, box);
    m_stitching = saddleStitching(*m_session);
    if (m_stitching && m_session->rule().lockedChoice(m_session->ppd(), m_stitching->option).isNull()) {
        m_stitched = new QCheckBox(tr("Saddle stitching"), grid->parentWidget());
        m_stitched->setObjectName(QStringLiteral("saddle-stitch"));
        m_stitched->setWhatsThis(explanationOf(m_stitched->objectName()));
        folded->insertWidget(folded->count() - 1, m_stitched);
        connect(m_stitched, &QCheckBox::toggled, this, &LayoutForm::stitch);
    }
    auto *others = addSwitchRow(grid);
    for (const auto &[name, text] :
         {std::pair(reverse, tr("Last page first")), {mirror, tr("Mirror image")}}) {
        if (auto *box = addSwitch(name, text, grid->parentWidget()))
            others->insertWidget(others->count() - 1, box);
    }
}

QHBoxLayout *LayoutForm::addSwitchRow(QGridLayout *grid)
{
    auto *row = new QHBoxLayout;
    row->setSpacing(markGap);
    row->addStretch(1);
    grid->addLayout(row, grid->rowCount(), 1);
    return row;
}

// Null if an option of the PPD takes the place of the setting.
QCheckBox *LayoutForm::addSwitch(const QString &name, const QString &text, QWidget *page)
{
    const QString keyword = PageLayoutSettings::keywordFor(name);
    if (m_session->ppd() && !keyword.isEmpty() && m_session->ppd()->hasOption(keyword))
        return nullptr;
    auto *box = new QCheckBox(text, page);
    box->setObjectName(name);
    box->setWhatsThis(explanationOf(name));
    box->setProperty(AccessKeys::yieldingProperty, true);
    m_switches.append({name, box});
    connect(box, &QCheckBox::toggled, this, [this, name](bool on) { turn(name, on); });
    return box;
}

void LayoutForm::turn(const QString &name, bool on)
{
    if (name == booklet)
        fold(on);
    else
        chooseGeneral(m_session, name, PageLayoutSettings::offered(name).value(on ? 1 : 0));
    refresh();
    Q_EMIT changed();
}

// Switches booklets on, which selects two-sided printing, or off, which restores the earlier choice.
void LayoutForm::fold(bool on)
{
    const auto sides = sidesForBooklet(*m_session);
    if (sides && on)
        m_sidesBefore = OptionChoice{sides->option, m_session->ppd()->markedChoice(sides->option), {}, {}};
    chooseGeneral(m_session, booklet, bookletChoice(on).choice);
    if (sides && !on && m_sidesBefore && m_session->ppd()->markedChoice(sides->option) == sides->choice)
        m_session->markChoice(m_sidesBefore->option, m_sidesBefore->choice);
    if (!on && m_stitched && m_stitched->isChecked())
        stitch(false);
    if (sides)
        Q_EMIT chosen(sides->option);
}

void LayoutForm::stitch(bool on)
{
    m_session->markChoice(m_stitching->option,
                          on ? m_stitching->choice : m_session->ppd()->defaultChoice(m_stitching->option));
    Q_EMIT chosen(m_stitching->option);
}

void LayoutForm::choose(const Row &row)
{
    chooseGeneral(m_session, row.name, row.box->currentData().toString());
    refresh();
    Q_EMIT changed();
}

void LayoutForm::refresh()
{
    const PageLayoutSettings &layout = m_session->general().layout;
    const QString alone =
        !layout.isBooklet()
            ? QString()
            : notAvailableWhile(tr("Booklet"), layoutValueText(booklet, QStringLiteral("true")));
    const QString single = layout.pagesPerSide() > 1
                               ? QString()
                               : notAvailableWhile(bareText(tr("Pages per side:")), QString::number(1));
    for (const Row &row : std::as_const(m_rows)) {
        const QString value = layout.value(row.name);
        // A default may be an uncommon value that is not offered.
        if (row.box->findData(value) < 0)
            row.box->addItem(layoutValueText(row.name, value), value);
        row.box->setCurrentIndex(row.box->findData(value));
        if (row.name == order || row.name == numberUp)
            enable(row.box, alone.isEmpty() && row.name == order ? single : alone);
    }
    const QString obstacle = scalingObstacle(*m_session);
    const QSignalBlocker quietScale(m_scale);
    m_scale->setValue(layout.percent());
    // An obstacle does not prevent the user from restoring the natural size.
    enable(m_scale, layout.percent() == PageSettings::naturalSize ? obstacle : QString());
    for (const Switch &each : std::as_const(m_switches)) {
        const QSignalBlocker quiet(each.box);
        each.box->setChecked(layout.value(each.name) == PageLayoutSettings::offered(each.name).last());
        if (each.name == booklet)
            enable(each.box, foldingObstacle());
    }
    if (!m_stitched)
        return;
    const QSignalBlocker quiet(m_stitched);
    const bool isStitched = m_session->ppd()->markedChoice(m_stitching->option) == m_stitching->choice;
    m_stitched->setChecked(isStitched);
    enable(m_stitched, stitchingObstacle());
}

void LayoutForm::enable(QWidget *control, const QString &obstacle)
{
    control->setEnabled(obstacle.isEmpty());
    control->setToolTip(obstacle);
}

// Why a booklet cannot be selected; null if it can be, or is already.
QString LayoutForm::foldingObstacle() const
{
    const PrintError refusal =
        m_session->locks().refusal(m_session->ppd(), booklet, bookletChoice(true).choice);
    return refusal && !m_session->general().layout.isBooklet() ? Policy::current().attribution() : QString();
}

// Why saddle stitching cannot be selected; null if it can be, or is already.
QString LayoutForm::stitchingObstacle() const
{
    if (m_stitched->isChecked())
        return {};
    if (!m_session->general().layout.isBooklet())
        return notAvailableWhile(tr("Booklet"), layoutValueText(booklet, QStringLiteral("false")));
    const auto forbidden = m_session->ppd()->forbiddenChoices(m_stitching->option);
    const auto obstacle = forbidden.constFind(m_stitching->choice);
    return obstacle == forbidden.constEnd() ? QString()
                                            : notAvailableWhile(obstacle->optionText, obstacle->choiceText);
}

} // namespace host
