#include "app/TextTime.h"
#include "crypto/Encrypt.h"
#include "platform/PlatformServicesImp.h"
#include "widgets/QProgressIndicator.h"

#include <QApplication>

#include <iostream>

int main(int argc, char** argv)
{
    const QApplication application(argc, argv);
    const QProgressIndicator indicator;
    std::cout << Encrypt::Sha256Encode("abc") << ' ' << splitString("abcd", 3).size() << ' '
              << indicator.animationDelay() << ' '
              << g_PlatformServices.messageManager()->messageBox(nullptr, L"", L"", 0) << '\n';
}
