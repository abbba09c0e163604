#include "platform/profiles/NarrowText.h"

#include <QTextCodec>

void NarrowText::append(const QByteArray& chunk)
{
    if (!m_decoder) {
        QTextCodec* utf8 = QTextCodec::codecForName("utf-8");
        m_decoder.reset(QTextCodec::codecForUtfText(chunk, utf8)->makeDecoder());
    }
    m_text += m_decoder->toUnicode(chunk).remove(QLatin1Char('\r'));
}
