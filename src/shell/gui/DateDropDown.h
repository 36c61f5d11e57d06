#pragma once

class QComboBox;

// Makes box a day, month or year drop-down that selects what is typed. Digits select the item
// that equals the number typed: "3" is 3 (not 30), "1" and "2" in quick succession 12, "0"
// and "3" 3, and "2","0","2","6" the year 2026. Letters select the first item whose text
// starts with them: "m" March, "may" May. The search always starts from the first item,
// never from the one shown, so the same keys always make the same choice; keys that match
// nothing leave the choice as it was. A choice made by typing is announced as a pick from the
// list is (activated). An editable box is left to its own typing.
void SelectAsTyped(QComboBox* box);
