// SPDX-FileCopyrightText: 2026 The kelmar-print authors
// SPDX-License-Identifier: Apache-2.0

#include "host/window/pages/general_page.h"

#include "host/policy/policy.h"
#include "host/printing/page_ranges.h"
#include "host/session/booklet.h"
#include "host/session/dialog_session.h"
#include "host/session/document_choice.h"
#include "host/session/setting_keys.h"
#include "host/window/look/announced.h"
#include "host/window/look/contrast.h"
#include "host/window/look/dialog_button.h"
#include "host/window/look/explanations.h"
#include "host/window/look/foreign_text.h"
#include "host/window/pages/document_box.h"
#include "host/window/pages/layout_form.h"
#include "host/window/pages/option_form.h"
#include "host/window/pages/page_controls.h"
#include "host/window/pages/range_check.h"
#include "host/window/pages/title_field.h"
#include "platform/wheel_guard.h"

#include <QCheckBox>
#include <QCoreApplication>
#include <QEvent>
#include <QGridLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QRadioButton>
#include <QSpinBox>

namespace host {

GeneralPage::GeneralPage(DialogSession *session, DocumentChoice *documents, QWidget *parent)
    : HostPage(parent), m_session(session), m_documents(documents), m_copies(new QSpinBox(this)),
      m_collate(new QCheckBox(tr("C&ollate"), this)), m_allPages(new QRadioButton(tr("&All"), this)),
      m_somePages(new QRadioButton(tr("&Range:"), this)), m_pages(new QLineEdit(this)),
      m_problem(new QLabel(this)), m_sides(new QLabel(this))
{
    // The names of the job options.
    m_copies->setObjectName(QStringLiteral("copies"));
    m_collate->setObjectName(QStringLiteral("multiple-document-handling"));
    m_pages->setObjectName(QStringLiteral("page-ranges"));
    auto *grid = new QGridLayout(this);
    grid->setContentsMargins(24, 10, 24, 8);
    grid->setHorizontalSpacing(12);
    grid->setVerticalSpacing(5); // so that the whole page fits a screen with 768 lines
    grid->setColumnStretch(2, 1);
    // so that nothing moves when the form is created
    grid->setColumnMinimumWidth(0, LayoutForm::labelWidth(this));
    addDocuments(grid);
    addCopies(grid);
    addPages(grid);
    if (session->ppd()) {
        grid->setRowMinimumHeight(grid->rowCount(), 8);
        m_form = new OptionForm(session, grid, this);
        m_form->add(generalOptionKeywords(*session->ppd()));
        connect(m_form, &OptionForm::chosen, this, &GeneralPage::chosen);
    }
    grid->setRowStretch(grid->rowCount(), 1);
    grid->setRowMinimumHeight(grid->rowCount() - 1,
                              LayoutForm::heightIn(*grid, m_copies->sizeHint().height()));
    showSides();
}

// The lower part is created after the page is visible.
void GeneralPage::paintEvent(QPaintEvent *event)
{
    HostPage::paintEvent(event);
    if (!std::exchange(m_isPainted, true))
        QMetaObject::invokeMethod(this, &GeneralPage::addLayout, Qt::QueuedConnection);
}

// Shows new rows at their final positions before the next paint.
void GeneralPage::settleLayout()
{
    for (QWidget *child : findChildren<QWidget *>(QString(), Qt::FindDirectChildrenOnly)) {
        if (child->isHidden() && !child->testAttribute(Qt::WA_WState_ExplicitShowHide))
            child->show();
    }
    for (QWidget *around = this; around; around = around->isWindow() ? nullptr : around->parentWidget())
        QCoreApplication::sendPostedEvents(around, QEvent::LayoutRequest);
}

void GeneralPage::addLayout()
{
    auto *grid = qobject_cast<QGridLayout *>(layout());
    grid->setRowStretch(grid->rowCount() - 1, 0);
    grid->setRowMinimumHeight(grid->rowCount() - 1, 0);
    m_layout = new LayoutForm(m_session, grid, this);
    connect(m_layout, &LayoutForm::changed, this, [this] {
        pagesEdited();
        Q_EMIT pagesChanged();
    });
    connect(m_layout, &LayoutForm::chosen, this, &GeneralPage::chosen);
    addSavePdf(grid);
    if (m_documents && !m_documents->title().isNull())
        addTitleField(m_documents, grid, this);
    explainParts();
    addRangeCheck();
    grid->setRowStretch(grid->rowCount(), 1);
    settleLayout();
    Q_EMIT grown();
}

void GeneralPage::explainParts()
{
    m_copies->setWhatsThis(explanationOf(QStringLiteral("copies")));
    m_collate->setWhatsThis(explanationOf(QStringLiteral("Collate")));
    m_allPages->setWhatsThis(explanationOf(QStringLiteral("all-pages")));
    for (QWidget *range : std::initializer_list<QWidget *>{m_somePages, m_pages})
        range->setWhatsThis(explanationOf(QStringLiteral("page-ranges")));
    for (const auto &[part, button] : std::as_const(m_parts))
        button->setWhatsThis(explanationOf(part == GeneralSettings::Part::Selection
                                               ? QStringLiteral("selection")
                                               : QStringLiteral("current-page")));
}

void GeneralPage::addRangeCheck()
{
    if (!m_documents || m_documents->paths().isEmpty())
        return;
    m_rangeCheck = new RangeCheck(m_session, m_documents, this);
    const auto checkAgain = [this] {
        if (m_somePages->isChecked())
            pagesEdited();
    };
    connect(m_rangeCheck, &RangeCheck::known, this, checkAgain);
    connect(m_documents, &DocumentChoice::includedChanged, this, checkAgain);
    checkAgain();
}

void GeneralPage::addDocuments(QGridLayout *grid)
{
    if (!m_documents || m_documents->paths().size() < 2)
        return;
    m_documentBox = new DocumentBox(m_documents, this);
    m_documentBox->setWhatsThis(explanationOf(QStringLiteral("documents")));
    setTabOrder(this, m_documentBox); // it is above all other controls
    auto *label = new QLabel(tr("Documents:"), this);
    label->setBuddy(m_documentBox);
    label->setAlignment(Qt::AlignRight | Qt::AlignTrailing | Qt::AlignTop);
    label->setContentsMargins(0, m_documentBox->frameWidth() + DocumentBox::rowPadding, 0, 0);
    grid->addWidget(label, 0, 0);
    grid->addWidget(m_documentBox, 0, 1);
}

void GeneralPage::addSavePdf(QGridLayout *grid)
{
    if (!m_documents || m_documents->paths().isEmpty())
        return;
    auto *button = new DialogButton(tr("Save as PDF…"), this);
    button->setAutoDefault(false);
    button->setToolTip(tr("Save the pages to a file instead of printing them"));
    button->setWhatsThis(explanationOf(QStringLiteral("save-pdf")));
    auto *row = new QHBoxLayout;
    row->setSpacing(8);
    row->addWidget(button);
    row->addStretch(1);
    grid->addLayout(row, grid->rowCount(), 1);
    connect(button, &QPushButton::clicked, this, &GeneralPage::savePdfWanted);
}

void GeneralPage::addCopies(QGridLayout *grid)
{
    m_copies->setRange(1, GeneralSettings::maxCopies);
    m_copies->setValue(m_session->general().copies);
    m_copies->setAccelerated(true);
    platform::guardFromWheel(m_copies);
    m_copies->setMinimumWidth(90);
    m_copies->setAccessibleName(tr("Copies"));
    m_collate->setChecked(m_session->general().collate);
    enableCollate();
    connect(m_copies, &QSpinBox::valueChanged, this, [this](int copies) {
        chooseGeneral(m_session, m_copies->objectName(), QString::number(copies));
        enableCollate();
    });
    connect(m_collate, &QCheckBox::toggled, this, [this](bool on) {
        chooseGeneral(m_session, m_collate->objectName(), GeneralSettings::handling(on));
    });

    auto *label = new QLabel(tr("&Copies:"), this);
    label->setBuddy(m_copies);
    label->setAlignment(Qt::AlignRight | Qt::AlignTrailing | Qt::AlignVCenter);
    auto *row = new QHBoxLayout;
    row->setSpacing(24); // space for the mark of a change
    row->addWidget(m_copies);
    row->addWidget(m_collate);
    row->addStretch(1);
    grid->addWidget(label, 1, 0);
    grid->addLayout(row, 1, 1);
}

void GeneralPage::enableCollate()
{
    const bool several = m_copies->value() > 1;
    const bool isFixed = static_cast<bool>(m_session->locks().refusal(
        m_session->ppd(), m_collate->objectName(), GeneralSettings::handling(!m_session->general().collate)));
    m_collate->setEnabled(several && !isFixed);
    m_collate->setToolTip(isFixed   ? tooltipOf(Policy::current().attribution())
                          : several ? tr("Print each complete copy before the next one")
                                    : notAvailableWhile(tr("Copies"), QString::number(1)));
}

void GeneralPage::enablePages(bool some)
{
    const QAbstractButton *instead = m_allPages;
    for (const auto &[part, button] : std::as_const(m_parts)) {
        if (button->isChecked())
            instead = button;
    }
    m_pages->setEnabled(some);
    m_pages->setToolTip(some ? QString()
                             : notAvailableWhile(bareText(tr("Pages:")), bareText(instead->text())));
    m_pages->setAccessibleDescription(m_pages->toolTip());
}

void GeneralPage::addPages(QGridLayout *grid)
{
    const QString pages = m_session->general().pages;
    m_pages->setPlaceholderText(tr("for example 1-3, 8"));
    m_pages->setAccessibleName(tr("Pages to print"));
    m_pages->setText(pages);
    m_allPages->setChecked(pages.isEmpty());
    m_somePages->setChecked(!pages.isEmpty());
    enablePages(!pages.isEmpty());
    makeAnnounced(m_problem);
    m_problem->setTextFormat(Qt::PlainText);
    m_problem->setWordWrap(true);
    m_problem->hide();
    paintProblem();
    connect(m_somePages, &QRadioButton::toggled, this, [this](bool on) {
        enablePages(on);
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
    grid->addWidget(label, 2, 0);
    grid->addWidget(m_allPages, 2, 1);
    const GeneralSettings &general = m_session->general();
    if (general.offersCurrentPage)
        grid->addWidget(addPart(GeneralSettings::Part::CurrentPage, tr("Current page")), 3, 1);
    if (general.offersSelection)
        grid->addWidget(addPart(GeneralSettings::Part::Selection, tr("Selection")), 4, 1);
    grid->addLayout(range, 5, 1);
    m_sides->setWordWrap(true);
    grid->addWidget(m_sides, 6, 1);
    grid->addWidget(m_problem, 7, 1);
}

QRadioButton *GeneralPage::addPart(GeneralSettings::Part part, const QString &text)
{
    auto *button = new QRadioButton(text, this);
    button->setChecked(m_session->general().part == part);
    m_parts.append({part, button});
    connect(button, &QRadioButton::toggled, this, [this] {
        enablePages(m_somePages->isChecked());
        pagesEdited();
    });
    return button;
}

// Shows the note that page ranges count printed sides, which the print system does if several pages are
// placed on one side.
void GeneralPage::showSides()
{
    const int pages = layoutAsPrinted(*m_session).pagesPerSide();
    m_sides->setText(tr("The numbers refer to printed sides with %1 pages each.").arg(pages));
    m_sides->setVisible(pages > 1 && m_somePages->isChecked());
}

void GeneralPage::pagesEdited()
{
    const QString text = pagesProblem();
    m_problem->setText(text);
    // Incomplete input such as "3-" or "3," is not an error while the user is typing.
    const bool unfinished =
        m_pages->text().trimmed().endsWith(QLatin1Char(',')) || m_pages->text().trimmed().isEmpty();
    setProblemShown(!text.isEmpty() && !unfinished);
    QString pages;
    if (m_somePages->isChecked())
        pages = normalizedPageRanges(m_pages->text(), nullptr).value_or(QString());
    for (const auto &[part, button] : std::as_const(m_parts)) {
        if (button->isChecked())
            pages = GeneralSettings::partName(part);
    }
    chooseGeneral(m_session, m_pages->objectName(), pages);
    showSides();
    Q_EMIT pagesChanged();
}

QString GeneralPage::problem() const
{
    if (m_documents && !m_documents->paths().isEmpty() && m_documents->included().isEmpty())
        return tr("Choose at least one document.");
    const QString pages = pagesProblem();
    return pages.isEmpty() && m_form ? m_form->problem() : pages;
}

QString GeneralPage::pagesProblem() const
{
    if (!m_somePages->isChecked())
        return {};
    if (m_pages->text().trimmed().isEmpty())
        return tr("Enter the pages to print, or choose all pages.");
    QString problem;
    const auto ranges = normalizedPageRanges(m_pages->text(), &problem);
    return ranges && m_rangeCheck ? m_rangeCheck->problem(*ranges) : problem;
}

void GeneralPage::showProblem()
{
    if (m_documents && !m_documents->paths().isEmpty() && m_documents->included().isEmpty()) {
        m_problem->setText(problem());
        announce(m_problem, problem());
        m_problem->show();
        m_documentBox->setFocus();
        return;
    }
    if (pagesProblem().isEmpty()) {
        m_form->showProblem();
        return;
    }
    m_problem->setText(pagesProblem());
    setProblemShown(true);
    m_pages->setFocus();
    m_pages->selectAll();
}

// Shows or hides the problem with the page range. Announces each problem once, and sets it as the description
// of the field.
void GeneralPage::setProblemShown(bool shown)
{
    const QString problem = shown ? m_problem->text() : QString();
    m_pages->setAccessibleDescription(shown ? problem : m_pages->toolTip());
    if (problem != std::exchange(m_announced, problem) && shown)
        announce(m_problem, problem);
    m_problem->setVisible(shown);
}

void GeneralPage::paintProblem()
{
    m_problem->setPalette(errorPalette(palette()));
}

void GeneralPage::changeEvent(QEvent *event)
{
    HostPage::changeEvent(event);
    if (event->type() == QEvent::PaletteChange && m_problem)
        paintProblem();
}

void GeneralPage::refresh()
{
    showGeneral();
    if (m_form)
        m_form->refresh();
    if (m_layout)
        m_layout->refresh();
}

void GeneralPage::setRanges(const QString &ranges)
{
    chooseGeneral(m_session, m_pages->objectName(), ranges);
    showGeneral();
}

// Shows the general settings. Typed ranges that represent the current setting are kept as they are.
void GeneralPage::showGeneral()
{
    const GeneralSettings general = m_session->general();
    m_copies->setValue(general.copies);
    m_collate->setChecked(general.collate);
    for (const auto &[part, button] : std::as_const(m_parts)) {
        const QSignalBlocker quiet(button);
        if (general.part == part)
            button->setChecked(true);
        else if (button->isChecked() && general.part == GeneralSettings::Part::Pages)
            (general.pages.isEmpty() ? m_allPages : m_somePages)->setChecked(true);
    }
    const QString typed = m_somePages->isChecked()
                              ? normalizedPageRanges(m_pages->text(), nullptr).value_or(QString())
                              : QString();
    if (typed == general.pages)
        return;
    const QSignalBlocker quiet(m_somePages); // its signal would move the focus to the field
    enablePages(!general.pages.isEmpty());
    m_somePages->setChecked(!general.pages.isEmpty());
    m_allPages->setChecked(general.pages.isEmpty());
    m_pages->setText(general.pages);
    pagesEdited();
}

} // namespace host
