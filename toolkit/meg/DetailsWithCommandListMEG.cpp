#include "DetailsWithCommandListMEG.h"

#include "TextBlock.h"
#include "Types.h"
#include "UEvent.h"
#include "VantoListBoxItemMEG.h"
#include "VantoListBoxMEG.h"
#include "VantoListBoxWithTitleMEG.h"

DetailsWithCommandListMEG::DetailsWithCommandListMEG(UWidget* parent)
    : UWidget(parent)
    , mList(new VantoListBoxWithTitleMEG)
{
    setRect(mList->getRect());
    mList->setParent(this);
    mList->setListener(this);
}

DetailsWithCommandListMEG::~DetailsWithCommandListMEG() = default;

void DetailsWithCommandListMEG::addListItem(VantoListBoxItemMEG* row)
{
    mList->list()->addItem(row);
}

void DetailsWithCommandListMEG::clearList()
{
    mList->list()->clear();
}

int DetailsWithCommandListMEG::getNumberOfCommands() const
{
    return mList->list()->count();
}

void DetailsWithCommandListMEG::setHeaderText(const std::string& text)
{
    mHeader = text;
    mList->setTitle(UString(TextBlock::oneLine(text)));
}

UString DetailsWithCommandListMEG::serialise() const
{
    TextBlock block("DetailsWithCommands");
    if (!mHeader.empty())
        block.field("caption", mHeader);
    block.blocks(mList->list()->screenText());
    return block.finish();
}

void DetailsWithCommandListMEG::event(UEvent* event)
{
    if (event->type == EventType::RowChosen)
        relay(*event);
}

bool DetailsWithCommandListMEG::keyEvent(UKeyEvent* key)
{
    switch (key->key()) {
    case UGlobal::KeyLeft:
    case UGlobal::KeyRight: return true;
    default: return mList->list()->keyEvent(key);
    }
}
