// SPDX-FileCopyrightText: 2026 The kelmar-print authors
// SPDX-License-Identifier: Apache-2.0

#include "host/window/general_page.h"

#include "host/session/dialog_session.h"
#include "host/session/page_ranges.h"
#include "host/window/contrast.h"
#include "host/window/explanations.h"
#include "host/window/option_form.h"

#include <QCheckBox>
#include <QEvent>
#include <QGridLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QRadioButton>
#include <QSpinBox>

namespace host {

GeneralPage::GeneralPage(DialogSession *session, QWidget *parent)
    : QWidget(parent), m_session(session), m_copies(new QSpinBox(this)),
      m_collate(new QCheckBox(tr("C&ollate"), this)), m_allPages(new QRadioButton(tr("&All"), this)),
      m_somePages(new QRadioButton(tr("&Range:"), this)), m_pages(new QLineEdit(this)),
      m_problem(new QLabel(this))
{
    // By the names that a job has for them.
    m_copies->setObjectName(QStringLiteral("copies"));
    m_collate->setObjectName(QStringLiteral("multiple-document-handling"));
    m_pages->setObjectName(QStringLiteral("page-ranges"));
    auto *grid = new QGridLayout(this);
    grid->setContentsMargins(24, 20, 24, 20);
    grid->setHorizontalSpacing(12);
    grid->setVerticalSpacing(10);
    grid->setColumnStretch(2, 1);
    addCopies(grid);
    addPages(grid);
    if (session->ppd()) {
        grid->setRowMinimumHeight(grid->rowCount(), 12);
        m_form = new OptionForm(session, generalOptionKeywords(*session->ppd()), grid, this);
        connect(m_form, &OptionForm::chosen, this, &GeneralPage::chosen);
    }
    grid->setRowStretch(grid->rowCount(), 1);
}

void GeneralPage::addCopies(QGridLayout *grid)
{
    m_copies->setRange(1, GeneralSettings::maxCopies);
    m_copies->setValue(m_session->general().copies);
    m_copies->setAccelerated(true);
    m_copies->setMinimumWidth(90);
    m_copies->setAccessibleName(tr("Copies"));
    m_copies->setWhatsThis(explanationOf(QStringLiteral("copies")));
    m_collate->setWhatsThis(explanationOf(QStringLiteral("Collate")));
    m_collate->setChecked(m_session->general().collate);
    enableCollate();
    connect(m_copies, &QSpinBox::valueChanged, this, [this](int copies) {
        m_session->general().copies = copies;
        enableCollate();
    });
    connect(m_collate, &QCheckBox::toggled, this, [this](bool on) { m_session->general().collate = on; });

    auto *label = new QLabel(tr("&Copies:"), this);
    label->setBuddy(m_copies);
    label->setAlignment(Qt::AlignRight | Qt::AlignTrailing | Qt::AlignVCenter);
    auto *row = new QHBoxLayout;
    row->setSpacing(16);
    row->addWidget(m_copies);
    row->addWidget(m_collate);
    row->addStretch(1);
    grid->addWidget(label, 0, 0);
    grid->addLayout(row, 0, 1);
}

void GeneralPage::enableCollate()
{
    const bool several = m_copies->value() > 1;
    m_collate->setEnabled(several);
    m_collate->setToolTip(several ? tr("Print each copy whole before the next one begins")
                                  : tr("Not available while \"%1\" is \"%2\".").arg(tr("Copies")).arg(1));
}

void GeneralPage::addPages(QGridLayout *grid)
{
    const QString pages = m_session->general().pages;
    m_pages->setPlaceholderText(tr("for example 1-3, 8"));
    m_pages->setAccessibleName(tr("Pages to print"));
    m_pages->setWhatsThis(explanationOf(QStringLiteral("page-ranges")));
    m_pages->setText(pages);
    m_allPages->setChecked(pages.isEmpty());
    m_somePages->setChecked(!pages.isEmpty());
    m_pages->setEnabled(!pages.isEmpty());
    m_problem->setTextFormat(Qt::PlainText);
    m_problem->setWordWrap(true);
    m_problem->hide();
    paintProblem();
    connect(m_somePages, &QRadioButton::toggled, this, [this](bool on) {
        m_pages->setEnabled(on);
        if (on)
            m_pages->setFocus();
        pagesEdited();
    });
    connect(m_pages, &QLineEdit::textChanged, this, &GeneralPage::pagesEdited);

    auto *label = new QLabel(tr("Pages:"), this);
    label->setAlignment(Qt::AlignRight | Qt::AlignTrailing | Qt::AlignVCenter);
    auto *range = new QHBoxLayout;
    range->setSpacing(8);
    range->addWidget(m_somePages);
    range->addWidget(m_pages, 1);
    grid->addWidget(label, 1, 0);
    grid->addWidget(m_allPages, 1, 1);
    grid->addLayout(range, 2, 1);
    grid->addWidget(m_problem, 3, 1);
}

void GeneralPage::pagesEdited()
{
    const QString text = pagesProblem();
    m_problem->setText(text);
    // While the user is still typing "3-" or "3," nothing is wrong yet.
    const bool unfinished =
        m_pages->text().trimmed().endsWith(QLatin1Char(',')) || m_pages->text().trimmed().isEmpty();
    setProblemShown(!text.isEmpty() && !unfinished);
    QString ignored;
    m_session->general().pages = m_somePages->isChecked()
                                     ? normalizedPageRanges(m_pages->text(), &ignored).value_or(QString())
                                     : QString();
}

QString GeneralPage::problem() const
{
    const QString pages = pagesProblem();
    return pages.isEmpty() && m_form ? m_form->problem() : pages;
}

QString GeneralPage::pagesProblem() const
{
    if (m_allPages->isChecked())
        return {};
    if (m_pages->text().trimmed().isEmpty())
        return tr("Type which pages are to be printed, or choose all.");
    QString problem;
    (void)normalizedPageRanges(m_pages->text(), &problem);
    return problem;
}

void GeneralPage::showProblem()
{
    if (pagesProblem().isEmpty()) {
        m_form->showProblem();
        return;
    }
    m_problem->setText(pagesProblem());
    setProblemShown(true);
    m_pages->setFocus();
    m_pages->selectAll();
}

// Who listens to the field hears of it as of something that belongs to the field.
void GeneralPage::setProblemShown(bool shown)
{
    m_problem->setVisible(shown);
    m_pages->setAccessibleDescription(shown ? m_problem->text() : QString());
}

void GeneralPage::paintProblem()
{
    QPalette red = palette();
    red.setColor(QPalette::WindowText, errorInk(red));
    m_problem->setPalette(red);
}

void GeneralPage::changeEvent(QEvent *event)
{
    QWidget::changeEvent(event);
    if (event->type() == QEvent::PaletteChange && m_problem)
        paintProblem();
}

void GeneralPage::refresh()
{
    showGeneral();
    if (m_form)
        m_form->refresh();
}

// What is being typed stays, as far as it says what is set.
void GeneralPage::showGeneral()
{
    const GeneralSettings general = m_session->general();
    m_copies->setValue(general.copies);
    m_collate->setChecked(general.collate);
    const QString typed = m_somePages->isChecked()
                              ? normalizedPageRanges(m_pages->text(), nullptr).value_or(QString())
                              : QString();
    if (typed == general.pages)
        return;
    const QSignalBlocker quiet(m_somePages); // which gives the field the focus
    m_pages->setEnabled(!general.pages.isEmpty());
    m_somePages->setChecked(!general.pages.isEmpty());
    m_allPages->setChecked(general.pages.isEmpty());
    m_pages->setText(general.pages);
    pagesEdited();
}

} // namespace host
