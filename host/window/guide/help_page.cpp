// SPDX-FileCopyrightText: 2026 The kelmar-print authors
// SPDX-License-Identifier: Apache-2.0

#include "host/window/guide/help_page.h"

#include "host/window/look/dialog_button.h"
#include "host/window/look/explanations.h"

#include <QHBoxLayout>
#include <QKeyEvent>
#include <QTextBlock>
#include <QTextBrowser>
#include <QTextCursor>
#include <QTextDocument>
#include <QUrl>
#include <QVBoxLayout>

#include <utility>

namespace host {

namespace {

const QString suffix = QStringLiteral(".md");

class Browser : public QTextBrowser
{
public:
    using QTextBrowser::QTextBrowser;

    QVariant loadResource(int, const QUrl &) override { return {}; }
};

// Uses the style of a page heading.
void styleTitle(QTextCursor cursor, const QFont &font)
{
    cursor.select(QTextCursor::BlockUnderCursor);
    QTextCharFormat title = cursor.charFormat();
    title.clearProperty(QTextFormat::FontSizeAdjustment); // set by Markdown, and takes precedence over a size
    title.setFontWeight(QFont::Normal);
    title.setFontPointSize(font.pointSizeF() * 1.5);
    cursor.setCharFormat(title);
}

// Increases the line and block spacing of Markdown.
void space(QTextDocument *document)
{
    bool wasInList = false;
    for (QTextBlock block = document->begin(); block.isValid(); block = block.next()) {
        QTextCursor cursor(block);
        QTextBlockFormat format = block.blockFormat();
        format.setLineHeight(125, QTextBlockFormat::ProportionalHeight);
        const bool isInList = block.textList();
        format.setTopMargin(format.headingLevel() > 1                         ? 14
                            : std::exchange(wasInList, isInList) && !isInList ? 10
                                                                              : 2);
        format.setBottomMargin(block.textList() ? 2 : 6);
        cursor.setBlockFormat(format);
        if (format.headingLevel() == 1)
            styleTitle(cursor, document->defaultFont());
    }
}

} // namespace

HelpPage::HelpPage(QWidget *parent) : QWidget(parent), m_browser(new Browser(this))
{
    m_browser->setFrameShape(QFrame::NoFrame);
    m_browser->setOpenLinks(false);
    m_browser->setAccessibleName(tr("Help"));
    m_browser->document()->setDocumentMargin(8);
    m_browser->document()->setIndentWidth(20);
    m_browser->viewport()->setAutoFillBackground(false);
    QPalette clear = m_browser->palette();
    clear.setColor(QPalette::Base, Qt::transparent);
    m_browser->setPalette(clear);
    connect(m_browser, &QTextBrowser::anchorClicked, this, [this](const QUrl &link) {
        const QString name = link.isRelative() ? link.path() : QString();
        if (name.endsWith(suffix))
            Q_EMIT topicWanted(name.chopped(suffix.size()));
    });

    auto *close = new DialogButton(tr("Close &Help"), this);
    close->setAutoDefault(false);
    close->setWhatsThis(explanationOf(QStringLiteral("close-help")));
    m_browser->setWhatsThis(explanationOf(QStringLiteral("help")));
    connect(close, &QPushButton::clicked, this, &HelpPage::closeWanted);
    auto *row = new QHBoxLayout;
    row->setContentsMargins(24, 6, 24, 10);
    row->addStretch(1);
    row->addWidget(close);
    auto *column = new QVBoxLayout(this);
    column->setContentsMargins(0, 0, 0, 0);
    column->setSpacing(0);
    auto *text = new QHBoxLayout;
    text->setContentsMargins(16, 10, 16, 0);
    text->addWidget(m_browser);
    column->addLayout(text, 1);
    column->addLayout(row);
}

void HelpPage::show(const QString &markdown, const QList<Explained> &explained)
{
    m_markdown = markdown;
    m_explained = explained;
    fill();
}

void HelpPage::fill()
{
    QTextDocument *document = m_browser->document();
    document->setMarkdown(m_markdown, QTextDocument::MarkdownFeatures(QTextDocument::MarkdownDialectGitHub |
                                                                      QTextDocument::MarkdownNoHTML));
    QTextCursor cursor(document);
    cursor.movePosition(QTextCursor::End);
    QTextCharFormat plain;
    QTextCharFormat bold;
    bold.setFontWeight(QFont::Bold);
    for (const Explained &item : std::as_const(m_explained)) {
        cursor.insertBlock(QTextBlockFormat(), plain);
        cursor.insertText(item.name + QStringLiteral(" – "), bold);
        cursor.insertText(item.text, plain);
    }
    space(document);
    m_browser->moveCursor(QTextCursor::Start);
    // A screen reader reads the description when the browser gets the focus, but not the text.
    m_browser->setAccessibleDescription(text());
}

QString HelpPage::text() const
{
    return m_browser->toPlainText();
}

void HelpPage::keyPressEvent(QKeyEvent *event)
{
    if (event->key() == Qt::Key_Escape)
        Q_EMIT closeWanted();
    else
        QWidget::keyPressEvent(event);
}

// Renders the text again if the palette changes, since the document contains the color of links.
void HelpPage::changeEvent(QEvent *event)
{
    QWidget::changeEvent(event);
    if (event->type() == QEvent::ApplicationPaletteChange && !m_markdown.isEmpty())
        fill();
}

} // namespace host
