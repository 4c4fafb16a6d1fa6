// SPDX-FileCopyrightText: 2026 The kelmar-print authors
// SPDX-License-Identifier: Apache-2.0

#include "host/window/printers/printer_picker.h"

#include "host/window/look/contrast.h"
#include "host/window/look/elided_label.h"
#include "host/window/look/foreign_text.h"
#include "host/window/printers/printer_box.h"
#include "host/window/printers/printer_list.h"
#include "host/window/printers/printer_settings.h"

#include <QEvent>
#include <QGridLayout>
#include <QLabel>

namespace host {

namespace {

constexpr qsizetype mostDescribed = 1000; // characters of the state with all supplies

} // namespace

PrinterPicker::PrinterPicker(QWidget *parent)
    : QWidget(parent), m_list(new PrinterList(this)), m_box(new PrinterBox(m_list, this)),
      m_state(new ElidedLabel(this))
{
    m_box->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
    m_box->setMinimumContentsLength(24);
    m_box->setMinimumWidth(160);
    m_box->setMaximumWidth(qMax(420, 32 * m_box->fontMetrics().averageCharWidth()));
    m_box->setAccessibleName(tr("Printer"));
    m_state->setIndent(2);
    m_state->setWordWrap(true);
    muteState();

    auto *label = new QLabel(tr("Pri&nter:"), this);
    label->setBuddy(m_box);
    auto *grid = new QGridLayout(this);
    grid->setContentsMargins(0, 0, 0, 0);
    grid->setHorizontalSpacing(12);
    grid->setVerticalSpacing(4);
    grid->addWidget(label, 0, 0);
    grid->addWidget(m_box, 0, 1);
    grid->addWidget(m_state, 1, 1, 1, 3);
    grid->setColumnStretch(2, 1);
    connect(m_box, &PrinterBox::opened, this, &PrinterPicker::opened);
    connect(m_box, &PrinterBox::closed, this, &PrinterPicker::orderRecent);
    connect(m_box, &QComboBox::activated, this,
            [this] { Q_EMIT picked(m_list->at(m_box->currentIndex()).name()); });
}

PrinterPicker::~PrinterPicker()
{
    m_box->disconnect(this); // the base class deletes the box, which closes an open list and emits signals
}

void PrinterPicker::offerToAdd()
{
    m_box->setOffersToAdd(!m_isFixed && PrinterSettings::find().has_value());
    connect(m_box, &PrinterBox::addWanted, this, &PrinterPicker::openSettings, Qt::UniqueConnection);
}

void PrinterPicker::openSettings()
{
    const auto settings = PrinterSettings::find();
    if (!settings || !settings->open()) {
        m_state->showText(tr("The printer settings of the desktop cannot be opened"));
        return;
    }
    m_isInSettings = true;
    window()->installEventFilter(this);
}

bool PrinterPicker::eventFilter(QObject *watched, QEvent *event)
{
    if (event->type() == QEvent::WindowActivate && m_isInSettings) {
        m_isInSettings = false;
        window()->removeEventFilter(this);
        Q_EMIT listOutdated();
    }
    return QWidget::eventFilter(watched, event);
}

void PrinterPicker::muteState()
{
    QPalette muted = palette();
    muted.setColor(QPalette::WindowText, mutedInk(muted));
    m_state->setPalette(muted);
}

void PrinterPicker::changeEvent(QEvent *event)
{
    QWidget::changeEvent(event);
    if (event->type() == QEvent::PaletteChange)
        muteState();
}

void PrinterPicker::setPrinters(const QList<Destination> &printers)
{
    if (m_isFixed)
        return;
    const Destination chosen = m_list->at(m_list->rowOf(m_current));
    const bool isAwaited = m_list->isAwaited(m_current);
    m_list->setPrinters(printers);
    if (m_list->rowOf(m_current) < 0) { // if a preset does not exist, its printer may
        const QString queue = m_current.section(QLatin1Char('/'), 0, 0);
        if (m_list->rowOf(queue) >= 0) {
            m_current = queue;
        } else if (!chosen.queue.isEmpty()) {
            isAwaited ? m_list->putAwaited(m_current)
                      : m_list->putMissing(chosen.withoutState()); // the server does not report it
        }
    }
    showRow(m_list->rowOf(m_current));
}

void PrinterPicker::setRecent(const QStringList &recent)
{
    m_recent = recent;
    if (!m_box->isPopupShown())
        orderRecent();
}

void PrinterPicker::orderRecent()
{
    if (m_recent && !m_isFixed)
        m_list->setRecent(*m_recent);
    m_recent.reset();
}

void PrinterPicker::showRow(int row)
{
    m_box->setCurrentIndex(row);
    if (row >= 0)
        describe(m_list->at(row));
}

void PrinterPicker::addBeside(QWidget *widget)
{
    static_cast<QGridLayout *>(layout())->addWidget(widget, 0, 3, Qt::AlignVCenter);
}

void PrinterPicker::putPrinter(const Destination &news)
{
    if (m_isFixed)
        return;
    Destination printer = news;
    if (printer.queue == m_current && m_list->rowOf(printer.name()) < 0)
        printer.instance.clear(); // requested before the preset was deleted
    m_list->put(printer);
    if (printer.name() == m_current)
        describe(printer);
}

void PrinterPicker::putFound(const Destination &printer)
{
    if (!m_isFixed)
        m_list->putFound(printer);
}

void PrinterPicker::setSearching(bool searching)
{
    m_box->setSearching(searching);
}

void PrinterPicker::setCurrent(const Destination &printer)
{
    m_current = printer.name();
    showRow(m_list->put(printer));
    m_list->dropStandIn(m_current);
}

void PrinterPicker::setAwaited(const QString &name)
{
    m_current = name;
    showRow(m_list->putAwaited(name));
    m_list->dropStandIn(m_current);
}

void PrinterPicker::setFixedText(const QString &text)
{
    Destination fixed;
    fixed.info = text;
    m_isFixed = true;
    m_list->setPrinters({fixed});
    m_box->setCurrentIndex(0);
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
    const QString state = printerStateText(printer);
    m_state->showText(state);
    const QString more =
        (QStringList{state} + printerSuppliesText(printer).split(QLatin1Char('\n'), Qt::SkipEmptyParts))
            .join(QLatin1Char('\n'));
    m_state->setToolTip(tooltipOf(more));
    m_box->setToolTip(tooltipOf(more));
    // Without the time of the report: a screen reader reads a changed description again.
    Destination untimed = printer;
    untimed.report.time = {};
    const QStringList parts =
        QStringList{state} + printerSuppliesText(untimed).split(QLatin1Char('\n'), Qt::SkipEmptyParts);
    m_box->setAccessibleDescription(oneLine(parts.join(QStringLiteral(" · ")), mostDescribed));
}

} // namespace host
