#include "PhonebookItemPrivate.h"

#include "GuiThread.h"

namespace DisplayAPI {

PhonebookItemPrivate::PhonebookItemPrivate(TranslationInfo* text)
{
    assertGuiThread();
    mTextInfo.take(text);
}

PhonebookItemPrivate::~PhonebookItemPrivate()
{
    assertGuiThread();
}

}
