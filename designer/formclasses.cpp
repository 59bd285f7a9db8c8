// SPDX-License-Identifier: MIT
#include "designer/formclasses.h"

#include "designer/dress.h"
#include "designer/formslider.h"

#include <ActiveButton>
#include <ActiveVectorButton>
#include <MeasuredPushButton>
#include <OnScreenKeyboard>
#include <PageStack>
#include <RowList>
#include <UpdatePage>
#include <VexoCenteredVectorButton>
#include <VexoCheckBox>
#include <VexoDesignVectorButton>
#include <VexoFunctionButton>
#include <VexoHorizontalLabelWidget>
#include <VexoHorizontalTextIconButton>
#include <VexoIconButton>
#include <VexoImageHeadline>
#include <VexoKeyboardButton>
#include <VexoLabel>
#include <VexoLabeledContainer>
#include <VexoLineEdit>
#include <VexoLineSpacer>
#include <VexoLogoLabel>
#include <VexoNumericButton>
#include <VexoPushButton>
#include <VexoRadioButton>
#include <VexoRuler>
#include <VexoSlider>
#include <VexoSliderDecoration>
#include <VexoTextEnumeration>
#include <VexoVerticalButtonScrollArea>
#include <VexoVerticalScrollArea>
#include <VexoVerticalScrollContent>
#include <VideoArea>
#include <VideoCapturePanning>

using namespace vexo::hox::qt::panel;
using namespace vexo::hox::qt::ui;

namespace {

constexpr char BUTTONS[] = "HoxqUi Buttons";
constexpr char CHOICE[] = "HoxqUi Choice and Input";
constexpr char TEXT[] = "HoxqUi Text and Lines";
constexpr char LISTS[] = "HoxqUi Lists and Containers";
constexpr char PAGES[] = "HoxqUi Video and Update";

} // namespace

const std::vector<FormClass> &formClasses()
{
    static const std::vector<FormClass> classes = {
        formClass<VexoPushButton>(BUTTONS, { 30, 0 }, "text=Push button", 11,
            "text=OK; m_mm_pen_line=0.6; pen_color=#505050", dressTightly),
        formClass<VexoFunctionButton>(
            BUTTONS, { 70, 0 }, "button_text=Row; m_button_type=ActionType", 14, "button_text=ab"),
        formClass<VexoHorizontalTextIconButton>(BUTTONS, { 70, 0 },
            "left_side_text=Text; right_side_text=Value; mm_indent=3", 14,
            "left_side_text=a; right_side_text=; mm_indent=1", dressWithArrow),
        formClass<VexoDesignVectorButton>(BUTTONS, { 70, 0 }, "text=Text; subtext=Subtext", 18,
            "text=ab; subtext=cd; mm_icon_width=8; mm_indent=12", dressWithMenu),
        formClass<VexoCenteredVectorButton>(BUTTONS, {},
            "text=Text; subtext=Subtext; m_icon_path=:/VexoIconGeneralTickSvg", 28,
            "text=ab; subtext=; m_text_font_size_in_pt=24; m_icon_top_spacing_in_mm=2"),
        formClass<VexoIconButton>(BUTTONS, { 10, 10 }, "", 11, "", dressWithPlus),
        formClass<VexoKeyboardButton>(BUTTONS, { 8, 0 }, "text=A", 9, ""),
        formClass<VexoNumericButton>(
            BUTTONS, {}, "maximum=100", 24, "current_value=8", dressWidely),
        formClass<MeasuredPushButton>(
            BUTTONS, { 20, 8 }, "text=Button", 9, "text=0.3 s; font=Sans,20,-1,5,75,0,0,0,0,0"),
        formClass<ActiveButton>(BUTTONS, { 10, 10 }, "", 11, "", dressWithTick),
        formClass<ActiveVectorButton>(BUTTONS, { 10, 10 }, "", 11, "", dressWithReset),
        formClass<VexoCheckBox>(
            CHOICE, { 30, 8 }, "text=Check box", 8, "text=; checked=true", dressInSheet),
        formClass<VexoRadioButton>(
            CHOICE, { 30, 8 }, "text=Radio button", 6, "text=; checked=true", dressInSheet),
        formClass<VexoLineEdit>(CHOICE, { 56, 0 }, "", 11,
            "text=ab; m_mm_pen_line=0.5; m_border_color=#505050; cursor_px_pen_width=5"),
        formClass<VexoSlider, FormSlider>(CHOICE, { 56, 6.5 },
            "orientation=Horizontal; maximum=100", 15, "value=50", dressInSheet),
        formClass<VexoSliderDecoration>(CHOICE, { 70, 12 }, "", 20, "m_style=HorizontalWithScale",
            dressWithSlider, "VexoSlider"),
        formClass<OnScreenKeyboard>(CHOICE, { 100, 0 }, "", 60, ""),
        formClass<VexoLabel>(TEXT, { 30, 0 }, "text=Label", 7, "text=ab; indent_in_mm=1"),
        formClass<VexoHorizontalLabelWidget>(TEXT, {},
            "left_label_text=Text; right_label_text=Value; left_label_mm_width=30; "
            "right_label_mm_width=30; mm_indent=3",
            14,
            "left_label_text=a; right_label_text=b; left_label_mm_width=8; right_label_mm_width=6; "
            "mm_indent=1"),
        formClass<VexoImageHeadline>(
            TEXT, {}, "label_text=Headline", 14, "label_text=ab; mm_width=14", dressWithInfo),
        formClass<VexoTextEnumeration>(TEXT, { 60, 0 }, "", 14, "", dressAsItem),
        formClass<VexoLogoLabel>(TEXT, { 40, 11 }, "", 14, "m_width_in_mm=13.6"),
        formClass<VexoLineSpacer>(TEXT, { 1, 20 }, "", 5,
            "dark_line_thickness_in_mm=0.5; light_line_thickness_in_mm=0.5; dark=#505050"),
        formClass<VexoRuler>(
            TEXT, { 70, 0 }, "", 1, "m_second_line_color=#505050; m_style=MainMiddle"),
        formClass<VexoVerticalScrollArea>(LISTS, { 70, 50 }, "", 22, "scroll_bar_enabled=true",
            dressWithList, "VexoVerticalScrollContent"),
        formClass<VexoVerticalScrollContent>(LISTS, { 70, 50 }, "", 24, "", dressWithRows),
        formClass<RowList>(LISTS, { 70, 50 }, "", 22, "scroll_bar_enabled=true; m_mm_row_height=7",
            dressWithModel),
        formClass<PageStack>(LISTS, { 70, 50 }, "", 20, "", dressWithPages),
        formClass<VexoLabeledContainer>(LISTS, { 70, 0 }, "label_text=Caption", 16,
            "label_text=abc; mm_left_margin=1; mm_right_margin=1; mm_top_margin=1; mm_height=14",
            dressWithField),
        formClass<VexoVerticalButtonScrollArea>(LISTS, { 0, 60 }, "", 16, "", dressInLargeLetters),
        formClass<VideoCapturePanning>(
            PAGES, { 70, 50 }, "", 20, "", dressWithPicture, "VideoArea"),
        formClass<VideoArea>(PAGES, { 70, 50 }, "", 20, "", dressOnPicture),
        formClass<UpdatePage>(PAGES, { 60, 50 }, "", 20, "", dressOnDarkGround),
    };
    return classes;
}
