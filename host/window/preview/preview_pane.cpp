// SPDX-FileCopyrightText: 2026 The kelmar-print authors
// SPDX-License-Identifier: Apache-2.0

#include "host/window/preview/preview_pane.h"

#include "host/preview/preview.h"
#include "host/printing/page_ranges.h"
#include "host/session/document_choice.h"
#include "host/window/look/announced.h"
#include "host/window/look/explanations.h"
#include "host/window/look/foreign_text.h"
#include "host/window/preview/preview_sheet.h"
#include "host/window/preview/preview_strip.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QLocale>
#include <QShortcut>
#include <QToolButton>
#include <QVBoxLayout>

namespace host {

namespace {

constexpr double millimetres = 25.4 / 72; // per point
const QString rangesName = QStringLiteral("page-ranges");

QToolButton *flatButton(const QString &name, QWidget *parent)
{
    auto *button = new QToolButton(parent);
    button->setAutoRaise(true);
    button->setToolTip(name);
    button->setAccessibleName(name);
    button->setFocusPolicy(Qt::TabFocus);
    return button;
}

QToolButton *pageButton(Qt::ArrowType arrow, const QString &name, QWidget *parent)
{
    auto *button = flatButton(name, parent);
    button->setArrowType(arrow);
    return button;
}

} // namespace

PreviewPane::PreviewPane(DocumentChoice *choice, QWidget *parent) : QWidget(parent), m_choice(choice)
{
    setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Expanding);
}

PreviewPane::~PreviewPane() = default;

void PreviewPane::begin(const PageTools &tools)
{
    if (m_preview)
        return;
    m_preview = new Preview(tools, this);
    build();
    connect(m_preview, &Preview::changed, this, &PreviewPane::factsChanged);
    connect(m_preview, &Preview::pageMade, this, &PreviewPane::showMade);
    connect(m_choice, &DocumentChoice::currentChanged, this, &PreviewPane::look);
    connect(m_choice, &DocumentChoice::includedChanged, this, &PreviewPane::applySettings);
    applySettings();
    m_preview->setWatched(isVisible());
    look();
}

void PreviewPane::build()
{
    setWhatsThis(explanationOf(QStringLiteral("preview")));
    m_sheet = new PreviewSheet(this);
    auto *zoom = new QHBoxLayout;
    zoom->setSpacing(2);
    zoom->addStretch(1);
    buildZoom(zoom);
    m_back = pageButton(Qt::LeftArrow, tr("Previous page"), this);
    m_forth = pageButton(Qt::RightArrow, tr("Next page"), this);
    m_caption = new QLabel(this);
    m_caption->setTextFormat(Qt::PlainText);
    m_caption->setAlignment(Qt::AlignCenter);
    m_caption->setWordWrap(true);
    m_strip = new PreviewStrip(m_preview, this);
    auto *row = new QHBoxLayout;
    row->addWidget(m_back);
    row->addWidget(m_caption, 1);
    row->addWidget(m_forth);
    auto *column = new QVBoxLayout(this);
    column->setContentsMargins(8, 8, 8, 8);
    column->setSpacing(4);
    column->addLayout(zoom);
    column->addWidget(m_sheet, 1);
    column->addLayout(row);
    column->addWidget(m_strip);
    for (QWidget *part : std::initializer_list<QWidget *>{m_back, m_forth, m_strip})
        part->hide();
    if (layoutDirection() == Qt::RightToLeft) {
        m_back->setArrowType(Qt::RightArrow);
        m_forth->setArrowType(Qt::LeftArrow);
    }
    connect(m_back, &QToolButton::clicked, this, [this] { m_strip->setCurrent(m_page - 1); });
    connect(m_forth, &QToolButton::clicked, this, [this] { m_strip->setCurrent(m_page + 1); });
    connect(m_strip, &PreviewStrip::picked, this, &PreviewPane::showPage);
    connect(m_strip, &PreviewStrip::toggled, this, &PreviewPane::toggle);
}

// Adds the buttons of the zoom, from smaller to larger, and its keys, which are those of document viewers.
void PreviewPane::buildZoom(QHBoxLayout *row)
{
    const auto keys = [](std::initializer_list<QKeyCombination> all) {
        return QList<QKeySequence>(all.begin(), all.end());
    };
    struct Action
    {
        QString name;
        QChar sign;
        QList<QKeySequence> keys;
        int steps; // 0 for the size of the whole page
    };
    m_zoom = new QLabel(this);
    makeAnnounced(m_zoom);
    m_zoom->setToolTip(tr("The size relative to the whole page"));
    // Shown with the first zoom, since it would otherwise be announced when the dialog opens.
    QSizePolicy kept = m_zoom->sizePolicy();
    kept.setRetainSizeWhenHidden(true);
    m_zoom->setSizePolicy(kept);
    m_zoom->hide();
    row->addWidget(m_zoom);
    const QList<Action> actions{
        {tr("Zoom out"), QChar(0x2212), keys({Qt::CTRL | Qt::Key_Minus}), -1},
        {tr("Zoom in"), QLatin1Char('+'), keys({Qt::CTRL | Qt::Key_Plus, Qt::CTRL | Qt::Key_Equal}), 1},
        {{}, {}, keys({Qt::CTRL | Qt::Key_0}), 0}};
    for (const Action &action : actions) {
        const auto zoom = [this, steps = action.steps] {
            const bool isShown = !m_zoom->isHidden();
            steps == 0 ? m_sheet->zoomToFit() : m_sheet->zoomBy(steps);
            if (isShown)
                announce(m_zoom, m_zoom->text());
        };
        for (const QKeySequence &key : action.keys)
            connect(new QShortcut(key, this), &QShortcut::activated, this, zoom);
        if (action.sign.isNull())
            continue;
        auto *button = flatButton(action.name, this);
        button->setText(action.sign);
        button->setToolTip(tr("%1 (%2)", "action, keys")
                               .arg(action.name, action.keys.first().toString(QKeySequence::NativeText)));
        row->insertWidget(action.steps < 0 ? 1 : row->count(), button);
        (action.steps < 0 ? m_smaller : m_larger) = button;
        connect(button, &QToolButton::clicked, this, zoom);
    }
    connect(m_sheet, &PreviewSheet::scaled, this, &PreviewPane::renderSharp);
    renderSharp();
}

// Requests the page again if it is now shown larger than it was rendered. The image is kept meanwhile.
void PreviewPane::renderSharp()
{
    m_zoom->setText(tr("%1×", "magnification").arg(QLocale().toString(m_sheet->zoom())));
    if (m_zoom->isHidden() && m_sheet->zoom() > 1) {
        announce(m_zoom, m_zoom->text());
        m_zoom->show();
    }
    // A button with the focus would lose it if it were disabled.
    m_smaller->setEnabled(m_sheet->canZoom(-1) || m_smaller->hasFocus());
    m_larger->setEnabled(m_sheet->canZoom(1) || m_larger->hasFocus());
    int pixels = Preview::pagePixels; // doubled, so that few sizes are rendered
    while (pixels < m_sheet->pixels())
        pixels *= 2;
    if (m_preview->setPagePixels(pixels) && !m_picture.isEmpty())
        (void)m_preview->page(m_page);
}

void PreviewPane::look()
{
    if (m_choice->current() < 0)
        return;
    m_page = 0;
    m_sheet->showText({});
    m_preview->setDocument(m_choice->paths().at(m_choice->current()));
    showPage(0);
}

void PreviewPane::setSettings(const PageSettings &settings, const SheetFinish &finish)
{
    m_settings = settings;
    m_finish = finish;
    if (m_preview)
        applySettings();
}

// Passes the settings to the preview, without the page ranges if possible, so that excluded pages are shown
// as well. The filters must apply the ranges themselves if they count other pages than the preview: with
// reverse order or odd or even pages, and if several documents are printed.
void PreviewPane::applySettings()
{
    QString ranges;
    bool isPlain = m_choice->included().size() == 1;
    for (const auto &[name, value] : std::as_const(m_settings.options)) {
        if (name == rangesName)
            ranges = normalizedPageRanges(value, nullptr).value_or(QString());
        isPlain &= !(name == QLatin1String("page-set") && value != QLatin1String("all")) &&
                   !(name == QLatin1String("outputorder") && value != QLatin1String("normal"));
    }
    PageSettings settings = m_settings;
    if (isPlain)
        settings.options.removeIf([](const auto &option) { return option.first == rangesName; });
    m_areRangesShown = isPlain;
    m_ranges = isPlain ? ranges : QString();
    m_preview->setSettings(settings);
    showRanges();
}

void PreviewPane::showRanges()
{
    m_strip->setPrinted(m_ranges, m_areRangesShown);
    m_sheet->setPrinted(containsPage(m_ranges, m_page + 1));
    m_sheet->setFinish(m_finish, m_finish.isTwoSided() && countPages(m_ranges, m_page) % 2 == 1);
    m_caption->setText(caption());
}

void PreviewPane::toggle(int page)
{
    if (const auto ranges = withPageToggled(m_ranges, page + 1, m_count))
        Q_EMIT rangesPicked(*ranges);
}

void PreviewPane::showEvent(QShowEvent *event)
{
    QWidget::showEvent(event);
    if (m_preview)
        m_preview->setWatched(true);
}

void PreviewPane::hideEvent(QHideEvent *event)
{
    QWidget::hideEvent(event);
    if (m_preview)
        m_preview->setWatched(false);
}

void PreviewPane::factsChanged()
{
    m_picture = QSize(); // of the previous pages; pageMade() announces the new ones
    const int count = m_preview->facts() ? m_preview->facts()->pages : 0;
    if (!m_preview->problem().isNull())
        m_sheet->showText(tr("No preview: %1.").arg(wrappable(m_preview->problem())));
    if (count > 0 || !m_preview->problem().isNull()) {
        m_count = count;
        m_strip->setCount(count);
        for (QWidget *part : std::initializer_list<QWidget *>{m_back, m_forth, m_strip})
            part->setVisible(count > 1);
        if (m_page >= count)
            showPage(qMax(0, count - 1));
    }
    m_caption->setText(caption());
    m_back->setEnabled(m_page > 0);
    m_forth->setEnabled(m_page + 1 < m_count);
}

// The previous image is kept until the page is available.
void PreviewPane::showPage(int page)
{
    m_page = page;
    const QImage picture = m_preview->page(page);
    m_picture = picture.size();
    if (!picture.isNull())
        m_sheet->showPage(picture);
    showRanges();
    m_back->setEnabled(m_page > 0);
    m_forth->setEnabled(m_page + 1 < m_count);
}

void PreviewPane::showMade(int page)
{
    if (page != m_page)
        return;
    const QImage picture = m_preview->page(page);
    m_picture = picture.size();
    if (picture.isNull())
        m_sheet->showText(tr("This page cannot be shown."));
    else
        m_sheet->showPage(picture);
    m_caption->setText(caption());
}

QString PreviewPane::caption() const
{
    if (!m_preview->facts())
        return {};
    const QLocale locale;
    QStringList lines;
    lines.append(tr("Page %1 of %2").arg(locale.toString(m_page + 1), locale.toString(m_count)));
    const int before = countPages(m_ranges, m_page); // printed pages
    if (!containsPage(m_ranges, m_page + 1))
        lines.append(tr("Not printed"));
    else if (m_finish.isTwoSided())
        lines.append((before % 2 == 0 ? tr("Sheet %1, front") : tr("Sheet %1, back"))
                         .arg(locale.toString(before / 2 + 1)));
    QSizeF size = m_preview->facts()->size * millimetres;
    if (!m_picture.isEmpty() && (m_picture.width() > m_picture.height()) != (size.width() > size.height()))
        size.transpose(); // the page is rotated
    lines.append(
        tr("%1 × %2 mm").arg(locale.toString(qRound(size.width())), locale.toString(qRound(size.height()))));
    if (!m_preview->isAsPrinted())
        lines.append(tr("Shown as in the document"));
    return lines.join(QLatin1Char('\n'));
}

} // namespace host
