import Vantle.Panel

// Follows a change of the captures on the card.
Spring {
    required property PanelModel panel

    response: panel.listResponse
    dampingFraction: panel.listDampingFraction
    enabled: !Appearance.reducesMotion
}
