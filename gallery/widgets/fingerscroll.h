#pragma once
// SPDX-License-Identifier: MIT

class QAbstractScrollArea;

/// Makes the scroll bar of \a area a narrow one that only shows the place.
void setNarrowScrollBar(QAbstractScrollArea *area);

/// The same, and lets a finger scroll \a area. What is inside reacts at once; rows, which have to
/// tell a tap from a swipe, need a VexoVerticalScrollArea. Not one inside the other: the toolkit
/// would move both.
void scrollByFinger(QAbstractScrollArea *area);

/// Lets a finger or the mouse move what \a area shows in both directions. A press reaches the area
/// at once. Not inside an area that scrolls by finger either.
void panByFinger(QAbstractScrollArea *area);
