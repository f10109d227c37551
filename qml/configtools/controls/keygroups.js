// Controls side by side that are one stop of the Tab key: Left and Right go from one to the next, Tab leaves them. An
// item with a true property "keyGroup" holds such controls; the outermost one counts.
.pragma library

function groupOf(item) {
    let group = null;
    for (let above = item.parent; above; above = above.parent) {
        if (above.keyGroup === true)
            group = above;
    }
    return group;
}

/// The buttons and boxes that the keyboard reaches, in the order of Tab. Fields need Left and Right for themselves.
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

/// Goes to what Tab reaches behind the group, or before it. Returns whether the item is in a group.
function leave(item, forward) {
    const group = groupOf(item);
    if (!group)
        return false;
    const members = membersOf(group);
    const edge = (forward ? members[members.length - 1] : members[0]) ?? item;
    edge.nextItemInFocusChain(forward).forceActiveFocus(forward ? Qt.TabFocusReason : Qt.BacktabFocusReason);
    return true;
}

/// Goes to the next control of the group, round at its end. Returns whether the item is in a group.
function step(item, by) {
    const group = groupOf(item);
    if (!group)
        return false;
    const members = membersOf(group);
    const place = members.indexOf(item);
    if (place >= 0)
        members[(place + by + members.length) % members.length].forceActiveFocus(Qt.TabFocusReason);
    return true;
}

/// The same for an arrow key, but not together with Ctrl or Alt.
function stepPlainly(item, event, by) {
    return !(event.modifiers & (Qt.ControlModifier | Qt.AltModifier)) && step(item, by);
}
