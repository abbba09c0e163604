#include "inspection/crypto/Sentences.h"

QString joinSentences(QStringList sentences)
{
    sentences.removeAll(QString());
    return sentences.join(QLatin1Char(' '));
}
