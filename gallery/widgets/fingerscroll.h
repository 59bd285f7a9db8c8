#pragma once

class QAbstractScrollArea;

/// Lets a finger scroll \a area, and makes its scroll bar a narrow one that only shows the place.
void scrollByFinger(QAbstractScrollArea *area);
