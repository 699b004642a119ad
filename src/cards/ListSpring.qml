import Vantle.Panel

// A spring with the motion of the latest change of the captures on the card.
Spring {
    required property PanelModel panel

    response: panel.listResponse
    dampingFraction: panel.listDampingFraction
    enabled: !Appearance.reducesMotion
}
