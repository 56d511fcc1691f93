/// Asks for the deletion of what is selected.
PillButton {
    symbol: "trash"
    variant: "danger"
    hint: "Deletes the selected items of every category permanently; asks first"
}
