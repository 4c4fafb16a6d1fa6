// SPDX-FileCopyrightText: 2026 The kelmar-print authors
// SPDX-License-Identifier: Apache-2.0

#include "host/window/summary_page.h"

#include "host/window/foreign_text.h"

#include <QGridLayout>
#include <QLabel>
#include <QVBoxLayout>

namespace host {

namespace {

constexpr int nameWidth = 240; // pixels

}

SummaryPage::SummaryPage(QWidget *parent) : QWidget(parent)
{
    auto *column = new QVBoxLayout(this);
    column->setContentsMargins(24, 20, 24, 20);
    column->addStretch(1);
}

void SummaryPage::show(const QList<SummarySection> &sections)
{
    delete m_sheet;
    m_sheet = new QWidget(this);
    m_grid = new QGridLayout(m_sheet);
    m_grid->setContentsMargins(0, 0, 0, 0);
    m_grid->setHorizontalSpacing(20);
    m_grid->setVerticalSpacing(6);
    m_grid->setColumnStretch(1, 1);
    for (const SummarySection &section : sections) {
        addTitle(section.title, &section == &sections.first());
        for (const auto &[name, value] : section.entries)
            addEntry(name, value);
    }
    static_cast<QVBoxLayout *>(layout())->insertWidget(0, m_sheet);
    m_sheet->show();
}

void SummaryPage::addTitle(const QString &title, bool first)
{
    auto *label = new QLabel(oneLine(title), m_sheet);
    label->setTextFormat(Qt::PlainText);
    QFont bold = label->font();
    bold.setWeight(QFont::DemiBold);
    label->setFont(bold);
    label->setContentsMargins(0, first ? 0 : 14, 0, 2);
    m_grid->addWidget(label, m_grid->rowCount(), 0, 1, 2);
}

void SummaryPage::addEntry(const QString &name, const QString &value)
{
    const int row = m_grid->rowCount();
    auto *left = new QLabel(m_sheet);
    left->setTextFormat(Qt::PlainText);
    left->setText(elided(name, left, nameWidth));
    QPalette muted = left->palette();
    QColor colour = muted.color(QPalette::WindowText);
    colour.setAlphaF(0.72F);
    muted.setColor(QPalette::WindowText, colour);
    left->setPalette(muted);
    auto *right = new QLabel(wrappable(value), m_sheet);
    right->setTextFormat(Qt::PlainText);
    right->setWordWrap(true);
    right->setTextInteractionFlags(Qt::TextSelectableByMouse | Qt::TextSelectableByKeyboard);
    right->setFocusPolicy(Qt::ClickFocus);
    right->setAccessibleName(QStringLiteral("%1: %2").arg(name, value));
    m_grid->addWidget(left, row, 0, Qt::AlignTop);
    m_grid->addWidget(right, row, 1);
}

} // namespace host
