// SPDX-FileCopyrightText: 2026 The kelmar-print authors
// SPDX-License-Identifier: Apache-2.0

#include "host/window/message_bar.h"

#include "host/window/foreign_text.h"

#include <QAccessible>
#include <QBoxLayout>
#include <QLabel>
#include <QPainter>
#include <QPushButton>
#include <QVBoxLayout>

namespace host {

namespace {

constexpr int iconSize = 20; // pixels

QLabel *plainLabel(QWidget *parent)
{
    auto *label = new QLabel(parent);
    label->setTextFormat(Qt::PlainText);
    label->setWordWrap(true);
    label->setTextInteractionFlags(Qt::TextSelectableByMouse);
    label->setFocusPolicy(Qt::NoFocus);
    return label;
}

QColor mixed(const QColor &a, const QColor &b, qreal share)
{
    return QColor::fromRgbF(static_cast<float>(a.redF() * share + b.redF() * (1 - share)),
                            static_cast<float>(a.greenF() * share + b.greenF() * (1 - share)),
                            static_cast<float>(a.blueF() * share + b.blueF() * (1 - share)));
}

} // namespace

MessageBar::MessageBar(QWidget *parent)
    : QFrame(parent), m_glyph(new StatusGlyph(iconSize, this)), m_title(plainLabel(this)),
      m_lines(plainLabel(this)), m_row(new QBoxLayout(QBoxLayout::TopToBottom)), m_buttonRow(new QHBoxLayout)
{
    QFont bold = m_title->font();
    bold.setWeight(QFont::DemiBold);
    m_title->setFont(bold);
    m_buttonRow->setSpacing(8);

    auto *texts = new QVBoxLayout;
    texts->setSpacing(1);
    texts->addWidget(m_title);
    texts->addWidget(m_lines);
    m_row->setSpacing(4);
    m_row->addLayout(texts, 1);
    m_row->addLayout(m_buttonRow);
    auto *row = new QHBoxLayout(this);
    row->setContentsMargins(14, 5, 12, 5);
    row->setSpacing(12);
    row->addWidget(m_glyph, 0, Qt::AlignTop);
    row->addLayout(m_row, 1);
    hide();
}

QString MessageBar::text() const
{
    return m_lines->isHidden() ? m_title->text() : m_title->text() + QLatin1Char('\n') + m_lines->text();
}

void MessageBar::showMessage(Kind kind, const QString &title, const QStringList &lines,
                             const QStringList &answers)
{
    m_kind = kind;
    m_glyph->setKind(kind);
    m_title->setText(wrappable(title));
    m_lines->setText(wrappable(lines.join(QLatin1Char('\n'))));
    m_lines->setToolTip(tooltipOf(lines.join(QLatin1Char('\n'))));
    m_lines->setVisible(!lines.isEmpty());
    qDeleteAll(m_buttons);
    m_buttons.clear();
    while (QLayoutItem *item = m_buttonRow->takeAt(0))
        delete item;
    // A single button stands beside the text, which keeps the bar low.
    m_row->setDirection(answers.size() > 1 ? QBoxLayout::TopToBottom : QBoxLayout::LeftToRight);
    if (answers.size() > 1)
        m_buttonRow->addStretch(1);
    for (qsizetype i = 0; i < answers.size(); ++i)
        addButton(answers.at(i), static_cast<int>(i));
    if (answers.isEmpty())
        addButton(tr("C&lose"), -1);
    setAccessibleName(text());
    show();
    update();
    QAccessibleEvent alert(this, QAccessible::Alert);
    QAccessible::updateAccessibility(&alert);
}

void MessageBar::addButton(const QString &text, int index)
{
    auto *button = new QPushButton(text, this);
    button->setAutoDefault(false);
    button->setMinimumWidth(96);
    connect(button, &QPushButton::clicked, this, [this, index] {
        hide();
        Q_EMIT answered(index);
    });
    m_buttonRow->addWidget(button);
    m_buttons.append(button);
}

void MessageBar::paintEvent(QPaintEvent *)
{
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    const QColor accent = StatusGlyph::colorOf(m_kind, palette());
    painter.setPen(mixed(accent, palette().color(QPalette::Window), 0.55));
    painter.setBrush(mixed(accent, palette().color(QPalette::Window), 0.14));
    painter.drawRoundedRect(QRectF(rect()).adjusted(0.5, 0.5, -0.5, -0.5), 6, 6);
}

} // namespace host
