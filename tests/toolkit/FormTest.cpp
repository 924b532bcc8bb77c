#include "GlassTest.h"

#include "ContextMenuMEG.h"
#include "FormItemMEG.h"
#include "FormWidgetMEG.h"
#include "SpellerMEG.h"
#include "VantoListBoxMEG.h"

#include <algorithm>
#include <memory>
#include <random>

namespace {

class FormTest : public GlassTest {
protected:
    FormTest()
        : form(new FormWidgetMEG(FormWidgetMEG::FormProportionType(), true))
    {
        form->setParent(&root);
        form->setListener(&recorder);
    }

    FormItemMEG* add(const std::string& label, FormItemIfc::FieldType type = FormItemIfc::AnyText)
    {
        auto* row = new FormItemMEG(text(label), text("value"), type, false);
        form->appendRow(row);
        return row;
    }
    FormItemMEG* addSelection()
    {
        FormItemMEG* row = add("selection", FormItemIfc::SelectionField);
        row->setContextMenu(new ContextMenuMEG(nullptr, true, -1, "Back?"));
        for (long handle = 1; handle <= 3; ++handle)
            row->addCommand("menu " + std::to_string(handle), "value " + std::to_string(handle), handle);
        return row;
    }
    FormSliderItemMEG* addSlider()
    {
        auto* row = new FormSliderItemMEG(text("slider"), nullptr);
        row->sliderMaximum(2);
        form->appendRow(row);
        return row;
    }

    UPointer<FormWidgetMEG> form;
    Recorder recorder;
};

/// A form and beside it the rows that must stand at its positions.
class FormRowsStory : public FormTest, public testing::WithParamInterface<unsigned> {
protected:
    int below(std::size_t end) { return std::uniform_int_distribution<int>(0, static_cast<int>(end) - 1)(random); }
    FormItemMEG* any() { return positions[static_cast<std::size_t>(below(positions.size()))]; }

    void insert(FormItemMEG* row)
    {
        const int position = below(positions.size() + 3) - 1;
        const bool isInside = position >= 0 && position <= static_cast<int>(positions.size());
        form->insertRowAt(row, position);
        positions.insert(isInside ? positions.begin() + position : positions.end(), row);
    }

    void step()
    {
        switch (positions.empty() ? 0 : below(9)) {
        case 0:
        case 1:
        case 2: insert(new FormItemMEG(text(std::to_string(++made)), UString(), FormItemIfc::AnyText, false)); break;
        case 3: insert(any()); break;
        case 4: {
            FormItemMEG* row = any();
            std::erase(positions, row);
            form->removeItem(row);
            EXPECT_EQ(row->parentWidget(), nullptr);
            delete row;
            break;
        }
        case 5: {
            FormItemMEG* row = any();
            std::erase(positions, row);
            delete row;
            break;
        }
        case 6: press(below(2) == 0 ? UGlobal::KeyDown : UGlobal::KeyUp); break;
        case 7: {
            const int position = below(positions.size());
            FormItemMEG* row = positions[static_cast<std::size_t>(position)];
            positions.erase(positions.begin() + position);
            form->removeRowAt(position);
            if (std::find(positions.begin(), positions.end(), row) == positions.end())
                delete row;
            break;
        }
        case 8: {
            FormItemMEG* row = any();
            const int current = form->listBox()->currentIndex();
            auto* other = new FormItemMEG(text(std::to_string(++made)), UString(), FormItemIfc::AnyText, false);
            std::replace(positions.begin(), positions.end(), row, other);
            form->replaceRow(row, other);
            EXPECT_EQ(form->listBox()->currentIndex(), current);
            delete row;
            break;
        }
        }
    }

    std::vector<FormItemMEG*> positions;
    std::mt19937 random{GetParam()};
    int made = 0;
};

}

TEST_P(FormRowsStory, EachPositionHasItsRow)
{
    for (int number = 0; number < 400; ++number) {
        step();
        ASSERT_EQ(form->rowCount(), static_cast<int>(positions.size()));
        for (int position = 0; position < form->rowCount(); ++position)
            ASSERT_EQ(
                form->listBox()->item(position)->getText(), positions[static_cast<std::size_t>(position)]->getText());
        const int current = form->listBox()->currentIndex();
        ASSERT_EQ(form->currentRow(), current < 0 ? nullptr : positions[static_cast<std::size_t>(current)]);
        ASSERT_EQ(current < 0, positions.empty());
    }
}

INSTANTIATE_TEST_SUITE_P(Seeds, FormRowsStory, testing::Range(1U, 6U));

TEST_F(FormTest, AnEditorGoesWithTheRowThatItBelongsTo)
{
    FormItemMEG* text = add("text");
    FormItemMEG* selection = addSelection();
    FormSliderItemMEG* slider = addSlider();
    add("last");
    const int modes[] = {FormWidgetMEG::Speller, FormWidgetMEG::SelectionList, FormWidgetMEG::SliderEditing};
    int number = 0;
    for (FormItemMEG* row : {text, selection, static_cast<FormItemMEG*>(slider)}) {
        SCOPED_TRACE(number);
        form->setCurrentRow(row);
        press(UGlobal::KeyOk);
        EXPECT_EQ(form->displayMode(), modes[number++]);
        EXPECT_TRUE(row->getEditing());
        recorder.takeTypes();
        form->setCurrentRow(form->currentRow());
        EXPECT_TRUE(row->getEditing()) << "nothing has changed";
        const UString value = row->valueText();
        row->setReadOnlyMode(true);
        EXPECT_FALSE(row->getEditing());
        for (const int key : {UGlobal::KeyRight, UGlobal::KeyOk})
            press(key);
        EXPECT_EQ(row->valueText(), value) << "what has become read-only is edited no further";
        row->setReadOnlyMode(false);
        press(UGlobal::KeyOk);
        EXPECT_TRUE(row->getEditing());
        recorder.takeTypes();
        delete row;
        EXPECT_EQ(form->displayMode(), FormWidgetMEG::Rows);
        EXPECT_EQ(form->speller(), nullptr);
        EXPECT_EQ(recorder.takeTypes(), Types());
        EXPECT_EQ(manager.focusWidget(), form.get());
    }
}

TEST_F(FormTest, AChoiceShowsItsValueAndItsNewTextBehindAChangeOfLocale)
{
    FormItemMEG* row = addSelection();
    row->setSelectionIndex(1);
    EXPECT_EQ(row->valueText(), text("value 2"));
    EXPECT_EQ(row->getSelectionCommand(), 2);
    row->selectionList()->listBox->item(1)->setText(text("valeur 2"));
    row->setSelectionIndex(1);
    EXPECT_EQ(row->valueText(), text("valeur 2"));
    row->setSelectionIndex(3); // the Back row
    row->setSelectionIndex(99);
    EXPECT_EQ(row->valueText(), text("valeur 2"));
    row->setSelectionCommand(3);
    EXPECT_EQ(row->getSelectionIndex(), 2U);
    press(UGlobal::KeyOk);
    press(UGlobal::KeyDown);
    press(UGlobal::KeyOk); // Back
    EXPECT_EQ(row->valueText(), text("value 3"));
    EXPECT_EQ(form->displayMode(), FormWidgetMEG::Rows);
}

TEST_F(FormTest, AListenerMayDeleteTheFormInsideAnyOfItsEvents)
{
    const std::vector<int> keys = {UGlobal::KeyOk, '2', UGlobal::KeyOk, UGlobal::KeyDown, UGlobal::KeyOk,
        UGlobal::KeyDown, UGlobal::KeyOk, UGlobal::KeyDown, UGlobal::KeyRight, UGlobal::KeyRight, UGlobal::KeyOk,
        UGlobal::KeyDown, UGlobal::KeyOk, UGlobal::KeyLeft};
    for (std::size_t fatal = 1;; ++fatal) {
        delete form.get();
        form = new FormWidgetMEG(FormWidgetMEG::FormProportionType(), true);
        form->setParent(&root);
        form->setListener(&recorder);
        add("text");
        addSelection();
        addSlider();
        add("command", FormItemIfc::CommandField);
        recorder.entries.clear();
        recorder.onEvent = [&](UEvent&) {
            if (recorder.entries.size() == fatal)
                delete form.get();
        };
        for (const int key : keys)
            press(key);
        if (recorder.entries.size() < fatal)
            break;
        EXPECT_EQ(recorder.entries.size(), fatal) << "a form that has gone tells nothing";
        EXPECT_FALSE(form);
    }
    using namespace EventType;
    EXPECT_EQ(recorder.takeTypes(),
        (Types{DisplayModeChanged, DisplayModeChanged, ValueCommitted, SpellerConfirmed, DisplayModeChanged,
            HighlightMoved, SelectionListMoved, SelectionListMoved, ValueCommitted, RowMoved, DisplayModeChanged,
            HighlightMoved, DisplayModeChanged, ValueCommitted, DisplayModeChanged, HighlightMoved, FormRowChosen,
            LeftPressed}));
}

TEST_F(FormTest, EveryEditorMayBeClosedInsideItsEvents)
{
    FormItemMEG* rows[] = {add("text"), addSelection(), addSlider()};
    for (FormItemMEG* row : rows) {
        for (std::size_t last = 1; last <= 4; ++last) {
            row->setReadOnlyMode(false);
            form->setCurrentRow(row);
            recorder.entries.clear();
            recorder.onEvent = [&](UEvent&) {
                if (recorder.entries.size() == last)
                    row->setReadOnlyMode(true);
            };
            for (const int key : std::initializer_list<int>{UGlobal::KeyOk, '2', UGlobal::KeyUp, UGlobal::KeyOk})
                press(key);
            EXPECT_FALSE(row->getReadOnlyMode() && row->getEditing());
        }
    }
}

TEST_F(FormTest, OnlyARowWithoutAValueShowsTheCaption)
{
    form->setCaption(text("Settings"));
    add("Name:");
    add("Save?", FormItemIfc::CommandField);
    EXPECT_EQ(line(0), whole("Name:"));
    press(UGlobal::KeyDown);
    EXPECT_EQ(line(0), whole("Settings"));
    form->setCaption(UString());
    EXPECT_EQ(line(0).substr(0, 5), "Name:") << "without a caption the line is the rows'";
}

TEST_F(FormTest, UnderALineThatIsTakenLabelAndValueShareTheOther)
{
    add("Number:");
    FormSliderItemMEG* slider = addSlider();
    add("A label of more than half the line");
    form->setStatusMessageAvailable(true);
    EXPECT_EQ(line(1), "Number: value             v");
    form->setCurrentRow(slider);
    EXPECT_EQ(line(1).substr(0, 8), "slider 0");
    press(UGlobal::KeyDown);
    EXPECT_EQ(line(1), "A label of mo value       ^");
    form->setStatusMessageAvailable(false);
    EXPECT_EQ(line(1), "value                     ^");
}
