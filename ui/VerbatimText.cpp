#include "ui/VerbatimText.h"

void VerbatimText::setDocument(QQuickTextDocument *document)
{
    if (document == m_document)
        return;
    if (m_text)
        m_text->disconnect(this);
    m_document = document;
    m_text = document ? document->textDocument() : nullptr;
    if (m_text)
        connect(m_text, &QTextDocument::contentsChanged, this, &VerbatimText::forgetExactText);
    remember(QString());
    emit documentChanged();
}

QString VerbatimText::exactText() const
{
    if (!m_exactTextKnown) {
        m_exactText = rawText();
        if (m_exactText == m_rawSource)
            m_exactText = m_source;
        else
            m_exactText.replace(QChar::ParagraphSeparator, QChar::LineFeed);
        m_exactTextKnown = true;
    }
    return m_exactText;
}

void VerbatimText::remember(const QString &source)
{
    m_source = source;
    m_rawSource = rawText();
    forgetExactText();
}

QString VerbatimText::rawText() const
{
    return m_text ? m_text->toRawText() : QString();
}

void VerbatimText::forgetExactText()
{
    m_exactTextKnown = false;
    m_exactText.clear();
    emit exactTextChanged();
}
