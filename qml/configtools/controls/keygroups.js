// Key groups: controls in a row that are one stop of the Tab key. Left and Right move between them, Tab leaves the
// group. An item with `keyGroup: true` is a group; the outermost one counts.
.pragma library

function groupOf(item) {
    let group = null;
    for (let above = item.parent; above; above = above.parent) {
        if (above.keyGroup === true)
            group = above;
    }
    return group;
}

/// The focusable buttons and boxes in Tab order. Text fields need Left and Right themselves.
function membersOf(item) {
    let members = [];
    for (let i = 0; i < item.children.length; ++i) {
        const child = item.children[i];
        if (!child.visible || !child.enabled)
            continue;
        if (child.activeFocusOnTab && child.checkable !== undefined)
            members.push(child);
        members = members.concat(membersOf(child));
    }
    return members;
}

/// Focuses the item after the group, or before it. Returns whether the item is in a group.
function leave(item, forward) {
    const group = groupOf(item);
    if (!group)
        return false;
    const members = membersOf(group);
    const edge = (forward ? members[members.length - 1] : members[0]) ?? item;
    edge.nextItemInFocusChain(forward).forceActiveFocus(forward ? Qt.TabFocusReason : Qt.BacktabFocusReason);
    return true;
}

/// Focuses the next control of the group, cyclically. Returns whether the item is in a group.
function step(item, by) {
    const group = groupOf(item);
    if (!group)
        return false;
    const members = membersOf(group);
    const index = members.indexOf(item);
    if (index >= 0)
        members[(index + by + members.length) % members.length].forceActiveFocus(Qt.TabFocusReason);
    return true;
}

/// Like step(), but ignores the key together with Ctrl or Alt.
function stepPlainly(item, event, by) {
    return !(event.modifiers & (Qt.ControlModifier | Qt.AltModifier)) && step(item, by);
}
