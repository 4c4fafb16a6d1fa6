// SPDX-FileCopyrightText: 2026 The kelmar-print authors
// SPDX-License-Identifier: Apache-2.0

#include "host/window/waiting/waiting_page.h"

#include "host/window/look/centred_label.h"
#include "host/window/look/changing_label.h"
#include "host/window/look/dialog_button.h"
#include "host/window/look/explanations.h"

#include <QLocale>
#include <QProgressBar>
#include <QVBoxLayout>

#include <algorithm>

namespace host {

namespace {

constexpr int barWidth = 260; // pixels
constexpr int steps = 1000;   // of the bar, so that files of any size fit into its range

// An amount of data with its unit, such as "1.5 MB".
QString amountText(qint64 bytes)
{
    return QLocale().formattedDataSize(bytes, 1, QLocale::DataSizeSIFormat);
}

} // namespace

WaitingPage::WaitingPage(QWidget *parent)
    : QWidget(parent), m_text(centredLabel(this)), m_amount(centredLabel(this)),
      m_bar(new QProgressBar(this)), m_cancel(new DialogButton({}, this))
{
    QFont large = m_text->font();
    large.setPointSizeF(large.pointSizeF() * 1.2);
    m_text->setFont(large);
    m_bar->setTextVisible(false);
    m_bar->setFixedWidth(barWidth);
    m_bar->setAccessibleName(tr("Progress"));
    m_cancel->setAutoDefault(false);
    m_cancel->setMinimumWidth(96);

    auto *column = new QVBoxLayout(this);
    column->setContentsMargins(60, 24, 60, 24);
    column->setSpacing(16);
    column->addStretch(2);
    column->addWidget(m_text);
    column->addWidget(m_bar, 0, Qt::AlignHCenter);
    column->addWidget(m_amount);
    column->addWidget(m_cancel, 0, Qt::AlignHCenter);
    column->addStretch(3);
    connect(m_cancel, &QPushButton::clicked, this, &WaitingPage::cancelled);
}

void WaitingPage::setTask(const QString &text, const QString &cancel)
{
    m_text = showAnnounced(m_text, text);
    m_cancel->setText(cancel);
    m_cancel->setWhatsThis(explanationOf(QStringLiteral("give-up")));
    m_cancel->setEnabled(true);
    setProgress(0, 0);
}

void WaitingPage::setProgress(qint64 done, qint64 total)
{
    const bool known = total > 0;
    m_bar->setRange(0, known ? steps : 0);
    m_bar->setValue(
        known ? static_cast<int>(
                    std::clamp<double>(static_cast<double>(done) / static_cast<double>(total), 0, 1) * steps)
              : -1);
    m_amount->setText(
        known ? tr("%1 of %2", "an amount of data, of the whole").arg(amountText(done), amountText(total))
              : QString());
}

void WaitingPage::setCancelling(const QString &text)
{
    m_text = showAnnounced(m_text, text);
    m_cancel->setEnabled(false);
}

QString WaitingPage::text() const
{
    return m_text->text();
}

} // namespace host
