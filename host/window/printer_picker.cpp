// SPDX-FileCopyrightText: 2026 The kelmar-print authors
// SPDX-License-Identifier: Apache-2.0

#include "host/window/printer_picker.h"

#include "host/window/elided_label.h"
#include "host/window/foreign_text.h"

#include <QComboBox>
#include <QGridLayout>
#include <QLabel>

namespace host {

PrinterPicker::PrinterPicker(QWidget *parent)
    : QWidget(parent), m_box(new QComboBox(this)), m_state(new ElidedLabel(this))
{
    m_box->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
    m_box->setMinimumContentsLength(24);
    m_box->setMinimumWidth(160);
    m_box->setMaximumWidth(qMax(420, 32 * m_box->fontMetrics().averageCharWidth()));
    m_box->setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
    m_box->setAccessibleName(tr("Printer"));
    m_state->setIndent(2);
    m_state->setWordWrap(true);
    QPalette muted = m_state->palette();
    QColor colour = muted.color(QPalette::WindowText);
    colour.setAlphaF(0.72F);
    muted.setColor(QPalette::WindowText, colour);
    m_state->setPalette(muted);

    auto *label = new QLabel(tr("&Printer:"), this);
    label->setBuddy(m_box);
    auto *grid = new QGridLayout(this);
    grid->setContentsMargins(0, 0, 0, 0);
    grid->setHorizontalSpacing(12);
    grid->setVerticalSpacing(4);
    grid->addWidget(label, 0, 0);
    grid->addWidget(m_box, 0, 1);
    grid->addWidget(m_state, 1, 1, 1, 2);
    grid->setColumnStretch(2, 1);
    connect(m_box, &QComboBox::activated, this, [this] {
        const QString name = m_box->currentData().value<Destination>().name();
        if (name != m_current)
            Q_EMIT picked(name);
    });
}

void PrinterPicker::setPrinters(const QList<Destination> &printers)
{
    m_box->clear();
    for (const Destination &printer : printers)
        m_box->addItem(oneLine(printer.displayName()), QVariant::fromValue(printer));
    m_box->setCurrentIndex(-1);
    for (int i = 0; i < m_box->count(); ++i) {
        if (m_box->itemData(i).value<Destination>().name() == m_current)
            m_box->setCurrentIndex(i);
    }
}

void PrinterPicker::setCurrent(const Destination &printer)
{
    m_current = printer.name();
    int index = -1;
    for (int i = 0; i < m_box->count(); ++i) {
        if (m_box->itemData(i).value<Destination>().name() == m_current)
            index = i;
    }
    if (index < 0) {
        m_box->addItem(oneLine(printer.displayName()), QVariant::fromValue(printer));
        index = m_box->count() - 1;
    }
    m_box->setCurrentIndex(index);
    describe(printer);
}

void PrinterPicker::setFixedText(const QString &text)
{
    m_box->clear();
    m_box->addItem(oneLine(text));
    m_box->setEnabled(false);
    m_state->showText(tr("Options of a PPD file; there is no printer to print on"));
}

void PrinterPicker::setCompact(bool compact)
{
    setContentsMargins(20, compact ? 8 : 16, 20, compact ? 8 : 12);
    m_state->setVisible(!compact);
}

void PrinterPicker::describe(const Destination &printer)
{
    QStringList parts;
    if (printer.stopped)
        parts.append(tr("Stopped: jobs wait until it is started again"));
    else if (!printer.accepting)
        parts.append(tr("Not accepting jobs"));
    else
        parts.append(tr("Ready"));
    if (!printer.location.isEmpty())
        parts.append(printer.location);
    if (!printer.makeAndModel.isEmpty())
        parts.append(printer.makeAndModel);
    const QString state = parts.join(QStringLiteral("  ·  "));
    m_state->showText(state);
    m_box->setToolTip(tooltipOf(state));
    m_box->setAccessibleDescription(oneLine(state));
}

} // namespace host
